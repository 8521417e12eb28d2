// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/PlugStorm.h"

#include "tests/support/PulseClient.h"

namespace TestSupport {

PlugStorm::PlugStorm(int rounds, Device device)
    : m_thread([this, rounds, device] { run(rounds, device); })
{
}

PlugStorm::~PlugStorm()
{
    m_isEnding = true;
    m_thread.join();
}

void PlugStorm::run(int rounds, Device device)
{
    const bool isSpeaker = device == Device::Speaker;
    const char* const module = isSpeaker ? "module-null-sink" : "module-remap-source";
    const char* const arguments =
        isSpeaker ? "norewinds=1 sink_name=hasty" : "source_name=hasty master=voice.monitor";
    PulseClient client;
    bool isGood = client.connect();
    for (int i = 0; i < rounds && isGood && !m_isEnding; ++i) {
        std::uint32_t index = 0;
        isGood = client.loadModule(module, arguments, index);
        m_events += isGood ? 1 : 0;
        isGood = isGood && client.unloadModule(index);
        m_events += isGood ? 1 : 0;
    }
    m_isOver = true;
}

} // namespace TestSupport
