// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/HastyDevice.h"

#include <atomic>
#include <thread>

namespace TestSupport {

// Plugs and unplugs a device as fast as the system can, on its own thread and connection.
class PlugStorm
{
public:
    PlugStorm(SoundServer& server, int rounds, HastyDevice::Kind kind = HastyDevice::Kind::Speaker);
    ~PlugStorm(); // stops early
    PlugStorm(const PlugStorm&) = delete;
    PlugStorm& operator=(const PlugStorm&) = delete;

    bool isOver() const { return m_isOver; }
    int events() const { return m_events; } // so far

private:
    void run(SoundServer& server, int rounds, HastyDevice::Kind kind);

    std::atomic<bool> m_isEnding{false};
    std::atomic<bool> m_isOver{false};
    std::atomic<int> m_events{0};
    std::thread m_thread; // last, because it uses the members above
};

} // namespace TestSupport
