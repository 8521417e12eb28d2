// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/wasapi/StagedAudio.h"
#include "tests/support/HastyDevice.h"
#include "tests/support/SoundServer.h"

#include <chrono>
#include <thread>

namespace TestSupport {

namespace {

constexpr std::chrono::milliseconds Interval(1); // about that of PulseAudio

QString id()
{
    return QStringLiteral("hasty");
}

} // namespace

// Staged alone: Wine's own list doesn't change, and the server's commands are slow from there.
struct HastyDevice::System
{
    StagedAudio& endpoints;
    Platform::SoundKind kind;
};

HastyDevice::HastyDevice(SoundServer& server, Kind kind)
    : m_system(new System{server.endpoints(), kind == Kind::Speaker
                                                  ? Platform::SoundKind::Speaker
                                                  : Platform::SoundKind::Microphone})
{
}

HastyDevice::~HastyDevice() = default;

bool HastyDevice::plug()
{
    m_system->endpoints.plug(m_system->kind, id(), id());
    std::this_thread::sleep_for(Interval);
    return true;
}

bool HastyDevice::unplug()
{
    m_system->endpoints.unplug(id());
    std::this_thread::sleep_for(Interval);
    return true;
}

} // namespace TestSupport
