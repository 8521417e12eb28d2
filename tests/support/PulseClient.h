// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

struct pa_context;
struct pa_mainloop;
struct pa_operation;

namespace TestSupport {

// A connection to the sound server of the environment, for what the command-line client can't do or
// does too slowly. Each call waits for the answer.
class PulseClient
{
public:
    PulseClient();
    ~PulseClient();
    PulseClient(const PulseClient&) = delete;
    PulseClient& operator=(const PulseClient&) = delete;

    // They return false if the server refuses.
    bool connect();
    bool loadModule(const char* name, const char* arguments, std::uint32_t& index);
    bool unloadModule(std::uint32_t index);
    bool killClient(std::uint32_t index);

private:
    bool iterate(const std::function<bool()>& isDone);
    bool finish(pa_operation* operation);

    pa_mainloop* m_loop;
    pa_context* m_context;
};

} // namespace TestSupport
