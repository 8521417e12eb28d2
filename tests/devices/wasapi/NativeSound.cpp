// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/wasapi/NativeSound.h"

#include <QTest>

namespace TestSupport {

namespace {

constexpr int TimeoutMs = 10000;

// Such as "unix:/folder/native"; run-program sets it.
QString address()
{
    return qEnvironmentVariable("PULSE_SERVER");
}

QStringList forThisServer(const QStringList& arguments)
{
    return QStringList(QStringLiteral("--server=") + address()) + arguments;
}

} // namespace

NativeSoundServer::~NativeSoundServer()
{
    kill();
}

bool NativeSoundServer::launch()
{
    const bool hasStarted = m_server.start(
        QStringLiteral("pulseaudio"),
        {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
         QStringLiteral("--use-pid-file=no"), QStringLiteral("--exit-idle-time=-1"),
         QStringLiteral("--realtime=no"), QStringLiteral("--high-priority=no"),
         QStringLiteral("--log-target=stderr"),
         QStringLiteral("--load=module-native-protocol-unix socket=%1 auth-anonymous=1 "
                        "auth-cookie-enabled=0")
             .arg(address().section(QLatin1Char(':'), 1))});
    return hasStarted &&
           QTest::qWaitFor([] { return !control({QStringLiteral("info")}).isEmpty(); }, TimeoutMs);
}

bool NativeSoundServer::start()
{
    if (!launch()) {
        return false;
    }
    const bool isWhole =
        !plugSpeaker(QStringLiteral("speaker_a"), QStringLiteral("Test Speaker A")).isEmpty() &&
        !plugSpeaker(QStringLiteral("voice"), QStringLiteral("Voice")).isEmpty();
    m_speakerB = plugSpeaker(QStringLiteral("speaker_b"), QStringLiteral("Test Speaker B"));
    m_microphoneA =
        plugMicrophone(QStringLiteral("microphone_a"), QStringLiteral("Test Microphone A"));
    return isWhole && !m_speakerB.isEmpty() && !m_microphoneA.isEmpty();
}

void NativeSoundServer::kill()
{
    if (m_server.isRunning()) {
        m_server.order("kill", "ended");
        m_server.end();
    }
}

QByteArray NativeSoundServer::plugSpeaker(const QString& name, const QString& description)
{
    // Without norewinds this module works in blocks of two seconds.
    return control(
        {QStringLiteral("load-module"), QStringLiteral("module-null-sink"),
         QStringLiteral("norewinds=1"), QStringLiteral("sink_name=") + name,
         QStringLiteral("rate=%1").arg(SoundRate), QStringLiteral("channels=2"),
         QStringLiteral("sink_properties='device.description=\"%1\"'").arg(description)});
}

QByteArray NativeSoundServer::plugMicrophone(const QString& name, const QString& description)
{
    return control(
        {QStringLiteral("load-module"), QStringLiteral("module-remap-source"),
         QStringLiteral("source_name=") + name, QStringLiteral("master=voice.monitor"),
         QStringLiteral("source_properties='device.description=\"%1\"'").arg(description)});
}

void NativeSoundServer::unplug(const QByteArray& module)
{
    control({QStringLiteral("unload-module"), QString::fromLatin1(module)});
}

QByteArray NativeSoundServer::startTone(const QString& speaker)
{
    return control({QStringLiteral("load-module"), QStringLiteral("module-sine"),
                    QStringLiteral("sink=") + speaker, QStringLiteral("frequency=440")});
}

QByteArray NativeSoundServer::loopBusBack(int latencyMs)
{
    return control({QStringLiteral("load-module"), QStringLiteral("module-loopback"),
                    QStringLiteral("source=bus_microphone"), QStringLiteral("sink=bus_speaker"),
                    QStringLiteral("latency_msec=%1").arg(latencyMs)});
}

bool NativeSoundServer::plugBus()
{
    const QString front = QStringLiteral("front-left,front-right");
    const QString rear = QStringLiteral("rear-left,rear-right");
    const auto plug = [](const char* module, const QString& arguments, const char* description) {
        const QStringList all = arguments.split(QLatin1Char(' '));
        const QString kind = all.first().section(QLatin1Char('_'), 0, 0);
        return !control(QStringList{QStringLiteral("load-module"), QString::fromLatin1(module),
                                    QStringLiteral("%1_properties='device.description=\"%2\"'")
                                        .arg(kind, QString::fromLatin1(description))} +
                        all)
                    .isEmpty();
    };
    const QString part = QStringLiteral("%1_name=bus_%2 master=%3 remix=no channels=2 "
                                        "channel_map=%4 master_channel_map=%5");
    return plug("module-null-sink",
                QStringLiteral("sink_name=bus norewinds=1 rate=%1 channels=4 channel_map=%2,%3")
                    .arg(SoundRate)
                    .arg(front, rear),
                "Bus") &&
           plug("module-remap-sink",
                part.arg(QStringLiteral("sink"), QStringLiteral("speaker"), QStringLiteral("bus"),
                         front, front),
                "Bus Speaker") &&
           plug("module-remap-sink",
                part.arg(QStringLiteral("sink"), QStringLiteral("voice"), QStringLiteral("bus"),
                         front, rear),
                "Bus Voice") &&
           plug("module-remap-source",
                part.arg(QStringLiteral("source"), QStringLiteral("microphone"),
                         QStringLiteral("bus.monitor"), front, rear),
                "Bus Microphone");
}

QByteArray NativeSoundServer::control(const QStringList& arguments)
{
    NativeProgram client;
    const bool hasEnded = client.start(QStringLiteral("pactl"), forThisServer(arguments)) &&
                          QTest::qWaitFor([&client] { return !client.isRunning(); }, TimeoutMs);
    return hasEnded ? client.socket().readAll().trimmed() : QByteArray();
}

void NativeSoundServer::order(const QStringList& arguments)
{
    NativeProgram client;
    if (client.start(QStringLiteral("pactl"), forThisServer(arguments))) {
        client.waitForEnd();
    }
}

} // namespace TestSupport
