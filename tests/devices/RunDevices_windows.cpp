// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/DialogCameras.h"
#include "tests/devices/NativeProgram.h"
#include "tests/devices/RunDevices.h"
#include "tests/devices/wasapi/NativeSound.h"

#include <QTest>
#include <cstring>

namespace TestSupport {

namespace {

constexpr int TimeoutMs = 15000;
constexpr int Attempts = 3; // nothing tells there how busy the machine is

// What the program of the system below Wine makes of a sound.
std::vector<float> decoded(const QStringList& input)
{
    NativeProgram decoder;
    const bool hasEnded =
        decoder.start(QStringLiteral("ffmpeg"),
                      QStringList{QStringLiteral("-v"), QStringLiteral("error")} + input +
                          QStringList{QStringLiteral("-f"), QStringLiteral("f32le"),
                                      QStringLiteral("-ac"), QStringLiteral("1"),
                                      QStringLiteral("-ar"), QString::number(SoundRate),
                                      QStringLiteral("-")}) &&
        QTest::qWaitFor([&decoder] { return !decoder.isRunning(); }, TimeoutMs);
    const QByteArray data = hasEnded ? decoder.socket().readAll() : QByteArray();
    std::vector<float> result(static_cast<std::size_t>(data.size()) / sizeof(float));
    std::memcpy(result.data(), data.constData(), result.size() * sizeof(float));
    return result;
}

} // namespace

struct RunDevices::Parts
{
    NativeSoundServer server;
    DialogCameras cameras;
    std::unique_ptr<NativeRecording> ear;
    std::unique_ptr<NativeSource> voice;
};

RunDevices::RunDevices() : m_parts(std::make_unique<Parts>())
{
}

RunDevices::~RunDevices() = default;

bool RunDevices::start()
{
    return m_parts->server.start() && m_parts->cameras.start();
}

bool RunDevices::plugCamera()
{
    m_parts->cameras.plug(QStringLiteral("camera"), QStringLiteral("Test Camera"));
    return true;
}

bool RunDevices::listen()
{
    m_parts->ear = std::make_unique<NativeRecording>(QStringLiteral("speaker_a.monitor"), 1);
    return m_parts->ear->waitForStart();
}

std::vector<float> RunDevices::heard() const
{
    return m_parts->ear->samples();
}

std::vector<float> RunDevices::say(const QString& text)
{
    const std::vector<float> words =
        decoded({QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                 QStringLiteral("flite=text='%1'").arg(text)});
    m_parts->voice = std::make_unique<NativeSource>(QStringLiteral("voice"), words);
    return words;
}

bool RunDevices::waitForVoice()
{
    return m_parts->voice->waitForEnd();
}

// As the system below knows it: Wine shows its files on drive Z.
std::vector<float> RunDevices::soundFile(const QString& path)
{
    const bool isOnZ = path.startsWith(QLatin1String("Z:"), Qt::CaseInsensitive);
    return decoded({QStringLiteral("-i"), isOnZ ? path.mid(2) : path});
}

QString RunDevices::measuredFault(const std::function<QString()>& measure)
{
    QString fault = measure();
    for (int attempt = 1; attempt < Attempts && !fault.isEmpty(); ++attempt) {
        qInfo("%s; once more", qPrintable(fault));
        fault = measure();
    }
    return fault;
}

} // namespace TestSupport
