// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/DeviceRig.h"

#include "tests/support/CameraProcess.h"

#include <QTest>

using namespace TestSupport;

namespace {

constexpr int StartTimeoutMs = 10000;

} // namespace

const QString DeviceRig::CameraName = QStringLiteral("Test Camera");

DeviceRig::DeviceRig() : m_server(SoundServer::Kind::PipeWire)
{
}

DeviceRig::~DeviceRig() = default;

bool DeviceRig::start()
{
    return m_server.start() && startCamera();
}

void DeviceRig::kill()
{
    m_server.kill();
    endCamera();
}

bool DeviceRig::restart()
{
    return m_server.start() && startCamera();
}

QStringList DeviceRig::devices(Step kind) const
{
    switch (kind) {
    case Step::Camera:
        return {CameraName};
    case Step::Speaker:
        return {QStringLiteral("Test Speaker A"), QStringLiteral("Test Speaker B"),
                QStringLiteral("Voice")};
    case Step::Microphone:
        return {QStringLiteral("Test Microphone A")};
    default:
        return {};
    }
}

int DeviceRig::streams()
{
    int result = 0;
    for (const char* kind : {"sink-inputs", "source-outputs"}) {
        const QByteArray list = m_server.control(
            {QStringLiteral("list"), QStringLiteral("short"), QLatin1String(kind)});
        result += list.isEmpty() ? 0 : list.count('\n') + 1;
    }
    return result;
}

bool DeviceRig::startCamera(const QString& description)
{
    endCamera();
    m_camera = std::make_unique<CameraProcess>(QStringLiteral("camera"), description);
    return QTest::qWaitFor([this] { return m_camera->output().contains("paused"); },
                           StartTimeoutMs);
}

void DeviceRig::endCamera()
{
    if (m_camera) {
        m_camera->kill();
        m_camera.reset();
    }
}
