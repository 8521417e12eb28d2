// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/PlugStorm.h"

namespace TestSupport {

PlugStorm::PlugStorm(SoundServer& server, int rounds, HastyDevice::Kind kind)
    : m_thread([this, &server, rounds, kind] { run(server, rounds, kind); })
{
}

PlugStorm::~PlugStorm()
{
    m_isEnding = true;
    m_thread.join();
}

void PlugStorm::run(SoundServer& server, int rounds, HastyDevice::Kind kind)
{
    HastyDevice device(server, kind);
    bool isGood = true;
    for (int i = 0; i < rounds && isGood && !m_isEnding; ++i) {
        isGood = device.plug();
        m_events += isGood ? 1 : 0;
        isGood = isGood && device.unplug();
        m_events += isGood ? 1 : 0;
    }
    m_isOver = true;
}

} // namespace TestSupport
