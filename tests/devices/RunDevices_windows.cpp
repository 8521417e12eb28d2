// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/DialogCameras.h"
#include "tests/devices/RunDevices.h"

namespace TestSupport {

struct RunDevices::Cameras
{
    DialogCameras cameras;
};

RunDevices::RunDevices()
    : m_sound(SoundServer::Kind::PulseAudio), m_cameras(std::make_unique<Cameras>())
{
}

RunDevices::~RunDevices() = default;

bool RunDevices::plugCamera()
{
    m_cameras->cameras.plug(QStringLiteral("camera"), QStringLiteral("Test Camera"));
    return true;
}

} // namespace TestSupport
