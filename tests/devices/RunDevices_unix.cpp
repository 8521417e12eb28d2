// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/RunDevices.h"

#include "tests/support/CameraProcess.h"
#include "tests/support/MachineDelay.h"
#include "tests/support/SoundRecording.h"
#include "tests/support/SoundServer.h"

#include <QTest>

namespace TestSupport {

namespace {

constexpr int CameraTimeoutMs = 15000;

} // namespace

struct RunDevices::Parts
{
    SoundServer server{SoundServer::Kind::PipeWire};
    std::unique_ptr<CameraProcess> camera;
    std::unique_ptr<SoundRecording> ear;
    std::unique_ptr<SoundSource> voice;
};

RunDevices::RunDevices() : m_parts(std::make_unique<Parts>())
{
}

RunDevices::~RunDevices() = default;

bool RunDevices::start()
{
    return m_parts->server.start();
}

bool RunDevices::plugCamera()
{
    m_parts->camera =
        std::make_unique<CameraProcess>(QStringLiteral("camera"), QStringLiteral("Test Camera"));
    return QTest::qWaitFor([this] { return m_parts->camera->output().contains("paused"); },
                           CameraTimeoutMs);
}

void RunDevices::unplugSound()
{
    for (const char* module : {"module-remap-source", "module-null-sink"}) {
        m_parts->server.control({QStringLiteral("unload-module"), QString::fromLatin1(module)});
    }
}

bool RunDevices::listen()
{
    m_parts->ear = std::make_unique<SoundRecording>(QStringLiteral("speaker_a.monitor"));
    return m_parts->ear->waitForStart();
}

std::vector<float> RunDevices::heard() const
{
    return m_parts->ear->samples();
}

std::vector<float> RunDevices::say(const QString& text)
{
    const std::vector<float> words = speech(text);
    m_parts->voice = std::make_unique<SoundSource>(QStringLiteral("voice"), words);
    return words;
}

bool RunDevices::waitForVoice()
{
    return m_parts->voice->waitForEnd();
}

std::vector<float> RunDevices::soundFile(const QString& path)
{
    return TestSupport::soundFile(path);
}

QString RunDevices::measuredFault(const std::function<QString()>& measure)
{
    return TestSupport::measuredFault(measure);
}

} // namespace TestSupport
