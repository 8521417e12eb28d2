// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace TestSupport {

class SoundServer;

// A device that is plugged and unplugged as fast as the system can. Used by one thread, which may
// be any. One source file for each system.
class HastyDevice
{
public:
    enum class Kind { Speaker, Microphone };

    HastyDevice(SoundServer& server, Kind kind);
    ~HastyDevice();
    HastyDevice(const HastyDevice&) = delete;
    HastyDevice& operator=(const HastyDevice&) = delete;

    bool plug(); // false if the server refuses
    bool unplug();

private:
    struct System;

    std::unique_ptr<System> m_system;
};

} // namespace TestSupport
