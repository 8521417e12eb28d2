// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/SoundServer.h"

#include <QTest>

namespace TestSupport {

namespace {

constexpr int StartTimeoutMs = 10000;

} // namespace

std::unique_ptr<SoundServer> SoundServer::startForTest()
{
    QFETCH_GLOBAL(Kind, server);
    auto result = std::make_unique<SoundServer>(server);
    return result->start() ? std::move(result) : nullptr;
}

bool SoundServer::start()
{
    if (!launch()) {
        qWarning("The sound server didn't start");
        return false;
    }
    m_speakerA = plugSpeaker(QStringLiteral("speaker_a"), QStringLiteral("Test Speaker A"));
    m_speakerB = plugSpeaker(QStringLiteral("speaker_b"), QStringLiteral("Test Speaker B"));
    const QByteArray voice = plugSpeaker(QStringLiteral("voice"), QStringLiteral("Voice"));
    m_microphoneA =
        plugMicrophone(QStringLiteral("microphone_a"), QStringLiteral("Test Microphone A"));
    const bool isWhole = !m_speakerA.isEmpty() && !m_speakerB.isEmpty() && !voice.isEmpty() &&
                         !m_microphoneA.isEmpty() &&
                         makeDefault(QStringLiteral("sink"), "speaker_a") &&
                         makeDefault(QStringLiteral("source"), "microphone_a");
    publish();
    return isWhole;
}

QByteArray SoundServer::plugSpeaker(const QString& name, const QString& description, int channels,
                                    int rate)
{
    // Without norewinds this module works in blocks of two seconds.
    return control(
        {QStringLiteral("load-module"), QStringLiteral("module-null-sink"),
         QStringLiteral("norewinds=1"), QStringLiteral("sink_name=%1").arg(name),
         QStringLiteral("rate=%1").arg(rate), QStringLiteral("channels=%1").arg(channels),
         QStringLiteral("sink_properties='device.description=\"%1\"'").arg(description)});
}

QByteArray SoundServer::plugMicrophone(const QString& name, const QString& description,
                                       const QString& hears)
{
    return control(
        {QStringLiteral("load-module"), QStringLiteral("module-remap-source"),
         QStringLiteral("source_name=%1").arg(name), QStringLiteral("master=%1.monitor").arg(hears),
         QStringLiteral("source_properties='device.description=\"%1\"'").arg(description)});
}

void SoundServer::unplug(const QByteArray& module)
{
    control({QStringLiteral("unload-module"), QString::fromLatin1(module)});
}

QStringList SoundServer::state()
{
    QStringList result;
    for (const char* kind : {"sinks", "sources"}) {
        const QList<QByteArray> lines =
            control({QStringLiteral("list"), QLatin1String(kind)}).split('\n');
        for (const QByteArray& line : lines) {
            const QString text = QString::fromUtf8(line.trimmed());
            if (text.startsWith(QLatin1String("Name: "))) {
                result.append(text.mid(6) + QLatin1Char('\t'));
            } else if (text.startsWith(QLatin1String("Mute: ")) ||
                       text.startsWith(QLatin1String("Volume: ")) ||
                       text.startsWith(QLatin1String("balance "))) {
                result.last() += text + QLatin1Char(' ');
            }
        }
    }
    for (const char* query : {"get-default-sink", "get-default-source"}) {
        result.append(QString::fromUtf8(control({QLatin1String(query)})));
    }
    return result;
}

// PipeWire accepts the command at once, and its session manager executes it later.
bool SoundServer::makeDefault(const QString& kind, const QByteArray& device)
{
    control({QStringLiteral("set-default-") + kind, QString::fromLatin1(device)});
    return QTest::qWaitFor(
        [&] { return control({QStringLiteral("get-default-") + kind}) == device; }, StartTimeoutMs);
}

} // namespace TestSupport
