// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/wasapi/WasapiStream.h"

#include <memory>
#include <optional>

namespace Platform {

// Opens streams on a thread of their own, one at a time, for a thread that must not hang. An
// opening that is replaced or abandoned ends by itself, whenever that is.
class WasapiOpening
{
public:
    struct Result
    {
        std::unique_ptr<WasapiStream> stream; // null if it failed
        HRESULT error = S_OK;
    };

    // wake is set if a result has come.
    explicit WasapiOpening(std::shared_ptr<WakeEvent> wake);
    ~WasapiOpening(); // abandons it
    WasapiOpening(const WasapiOpening&) = delete;
    WasapiOpening& operator=(const WasapiOpening&) = delete;

    // Replaces an earlier opening. If no thread can be had, the result is an error.
    void start(const WasapiStream::Order& order);
    void abandon();
    std::optional<Result> take(); // once

private:
    struct Shared;

    std::shared_ptr<WakeEvent> m_wake;
    std::shared_ptr<Shared> m_shared; // null if nothing is being opened
};

} // namespace Platform
