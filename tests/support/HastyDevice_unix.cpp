// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/HastyDevice.h"

#include "tests/support/PulseClient.h"

namespace TestSupport {

struct HastyDevice::System
{
    PulseClient client;
    const char* module;
    const char* arguments;
    std::uint32_t index = 0;
};

// The server is that of the environment.
HastyDevice::HastyDevice(SoundServer& /*server*/, Kind kind) : m_system(std::make_unique<System>())
{
    const bool isSpeaker = kind == Kind::Speaker;
    m_system->module = isSpeaker ? "module-null-sink" : "module-remap-source";
    m_system->arguments =
        isSpeaker ? "norewinds=1 sink_name=hasty" : "source_name=hasty master=voice.monitor";
    m_system->client.connect(); // if not, nothing is plugged
}

HastyDevice::~HastyDevice() = default;

bool HastyDevice::plug()
{
    return m_system->client.loadModule(m_system->module, m_system->arguments, m_system->index);
}

bool HastyDevice::unplug()
{
    return m_system->client.unloadModule(m_system->index);
}

} // namespace TestSupport
