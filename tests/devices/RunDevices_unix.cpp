// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/RunDevices.h"

#include "tests/support/CameraProcess.h"

#include <QTest>

namespace TestSupport {

namespace {

constexpr int CameraTimeoutMs = 15000;

} // namespace

struct RunDevices::Cameras
{
    std::unique_ptr<CameraProcess> camera;
};

RunDevices::RunDevices()
    : m_sound(SoundServer::Kind::PipeWire), m_cameras(std::make_unique<Cameras>())
{
}

RunDevices::~RunDevices() = default;

bool RunDevices::plugCamera()
{
    auto& camera = m_cameras->camera;
    camera =
        std::make_unique<CameraProcess>(QStringLiteral("camera"), QStringLiteral("Test Camera"));
    return QTest::qWaitFor([&camera] { return camera->output().contains("paused"); },
                           CameraTimeoutMs);
}

} // namespace TestSupport
