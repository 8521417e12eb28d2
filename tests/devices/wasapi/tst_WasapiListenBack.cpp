// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiCapture.h"
#include "platform/devices/windows/DriverThread.h"
#include "tests/devices/wasapi/CaptureOpening.h"
#include "tests/devices/wasapi/ListenBackMeter.h"
#include "tests/devices/wasapi/NativeSound.h"
#include "tests/devices/wasapi/WasapiEndpoint.h"

#include <QTest>
#include <algorithm>

using namespace Platform;
using TestSupport::ListenBackFigures;
using TestSupport::NativeSoundServer;

namespace {

constexpr int TimeoutMs = 10000;
constexpr int PeerLatencyMs = 20;
constexpr int SettleMs = 1000;
constexpr int UsualVoiceSeconds = 4;
constexpr int Attempts = 5;
// It is 1.3 on a quiet machine. Wine hands 10 ms at a time to and from the server.
constexpr double MaxRatio = 2.0;
constexpr std::size_t MaxMoreGaps = 5; // on a quiet machine, none

// ENVCHECK_VOICE_SECONDS if that is longer than usual.
double voiceSeconds()
{
    return std::max(UsualVoiceSeconds, qEnvironmentVariableIntValue("ENVCHECK_VOICE_SECONDS"));
}

} // namespace

// Under Wine, on devices of a real sound server that have one clock.
class tst_WasapiListenBack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_server.start());
        QVERIFY(m_server.plugBus());
        m_microphone = TestSupport::microphoneCalled(QStringLiteral("Bus Microphone"));
        m_speaker = TestSupport::speakerCalled(QStringLiteral("Bus Speaker"));
        QVERIFY(!m_microphone.isEmpty() && !m_speaker.isEmpty());
    }

    void cleanup() { QTRY_COMPARE_WITH_TIMEOUT(DriverThread::count(), 0, TimeoutMs); }

    // It is judged by the server's own module. A busy machine tears the sound, since nothing that
    // is under Wine has real-time priority.
    void delayAndGaps()
    {
        QString fault;
        for (int attempt = 0; attempt < Attempts; ++attempt) {
            fault = compare();
            if (fault.isEmpty()) {
                return;
            }
        }
        QFAIL(qPrintable(fault));
    }

private:
    QString compare()
    {
        const std::optional<ListenBackFigures> peer = measurePeer();
        const std::optional<ListenBackFigures> own = measureOwn();
        if (!peer || !own) {
            return peer ? QStringLiteral("The speaker is silent")
                        : QStringLiteral("The module is silent");
        }
        const QString figures =
            QStringLiteral("%1; module: %2").arg(own->toString(), peer->toString());
        qInfo("%s", qPrintable(figures));
        const bool isFast = own->medianMs() <= MaxRatio * peer->medianMs();
        const bool isWhole = own->gapsMs.size() <= peer->gapsMs.size() + MaxMoreGaps;
        return isFast && isWhole ? QString() : figures;
    }

    std::optional<ListenBackFigures> measurePeer()
    {
        const QByteArray module = m_server.loopBusBack(PeerLatencyMs);
        QTest::qWait(SettleMs);
        const auto figures = TestSupport::ListenBackMeter::measure(voiceSeconds());
        m_server.unplug(module);
        return figures;
    }

    std::optional<ListenBackFigures> measureOwn() const
    {
        WasapiCapture capture;
        capture.listenOn(m_speaker);
        const TestSupport::CaptureOpening opening(capture, m_microphone);
        QTest::qWait(SettleMs);
        return TestSupport::ListenBackMeter::measure(voiceSeconds());
    }

    NativeSoundServer m_server;
    QString m_microphone;
    QString m_speaker;
};

QTEST_GUILESS_MAIN(tst_WasapiListenBack)
#include "tst_WasapiListenBack.moc"
