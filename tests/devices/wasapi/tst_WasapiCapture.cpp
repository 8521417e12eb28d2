// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/LevelMeter.h"
#include "platform/devices/sound/SoundMath.h"
#include "platform/devices/wasapi/WasapiCapture.h"
#include "platform/devices/windows/DriverThread.h"
#include "tests/devices/wasapi/CaptureOpening.h"
#include "tests/devices/wasapi/NativeSound.h"
#include "tests/devices/wasapi/WasapiEndpoint.h"
#include "tests/support/SoundRecording.h"

#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <memory>

using namespace Platform;
using namespace std::chrono_literals;
using Opening = TestSupport::CaptureOpening;
using TestSupport::NativeSoundServer;
using TestSupport::SoundSource;

namespace {

constexpr int TimeoutMs = 10000;
constexpr qint64 LongestCallMs = 100;
constexpr int Openings = 3 * DriverThread::MaxCount;

} // namespace

// Under Wine, on devices of a real sound server.
class tst_WasapiCapture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_server.start());
        m_microphone = TestSupport::microphoneCalled(QStringLiteral("Test Microphone A"));
        m_speaker = TestSupport::speakerCalled(QStringLiteral("Test Speaker A"));
        QVERIFY(!m_microphone.isEmpty() && !m_speaker.isEmpty());
    }

    // No stream and no thread is left.
    void cleanup() { QTRY_COMPARE_WITH_TIMEOUT(DriverThread::count(), 0, TimeoutMs); }

    void levelOfAKnownTone_data()
    {
        QTest::addColumn<double>("decibels");
        QTest::newRow("-6 dBFS") << -6.0;
        QTest::newRow("-30 dBFS") << -30.0;
    }

    void levelOfAKnownTone()
    {
        QFETCH(double, decibels);
        WasapiCapture capture;
        const Opening opening(capture, m_microphone);
        QTRY_VERIFY_WITH_TIMEOUT(opening.outcome->delivers, TimeoutMs);
        const SoundSource tone(QStringLiteral("voice"), TestSupport::tone(3.0, 440.0, decibels));
        const double expected = LevelMeter::levelOf(amplitudeOfDecibels(decibels));
        QTRY_VERIFY2_WITH_TIMEOUT(std::abs(opening.outcome->level - expected) < 0.02,
                                  qPrintable(QString::number(opening.outcome->level)), TimeoutMs);
        QTRY_VERIFY_WITH_TIMEOUT(opening.outcome->isHeard, TimeoutMs);
        QCOMPARE(opening.outcome->failures.load(), 0);
    }

    void unpluggedAndPluggedAgain()
    {
        WasapiCapture capture;
        const Opening opening(capture, m_microphone);
        QTRY_VERIFY_WITH_TIMEOUT(opening.outcome->delivers, TimeoutMs);
        m_server.unplug(m_server.microphoneA());
        QTRY_COMPARE_WITH_TIMEOUT(opening.outcome->failures.load(), 1, TimeoutMs);
        QVERIFY(!delivers(capture)); // while it is away
        m_server.plugMicrophone(QStringLiteral("microphone_a"),
                                QStringLiteral("Test Microphone A"));
        QTRY_VERIFY_WITH_TIMEOUT(delivers(capture), TimeoutMs);
        QCOMPARE(opening.outcome->failures.load(), 1);
    }

    // The recording says for ever that no packet has come; only the fill level is an error.
    void serverIsKilledAndStartsAgain()
    {
        WasapiCapture capture;
        const Opening opening(capture, m_microphone);
        QTRY_VERIFY_WITH_TIMEOUT(opening.outcome->delivers, TimeoutMs);
        m_server.kill();
        QTRY_COMPARE_WITH_TIMEOUT(opening.outcome->failures.load(), 1, TimeoutMs);
        QVERIFY(m_server.start());
        QTRY_VERIFY_WITH_TIMEOUT(delivers(capture), TimeoutMs);
    }

    // It is told as hung, and each opening leaves a thread behind, but never more than the limit.
    void serverIsFrozen()
    {
        WasapiCapture capture;
        const Opening opening(capture, m_microphone);
        QTRY_VERIFY_WITH_TIMEOUT(opening.outcome->delivers, TimeoutMs);
        capture.listenOn(m_speaker);
        QVERIFY(m_server.freeze());
        QTRY_VERIFY_WITH_TIMEOUT(!opening.outcome->delivers, TimeoutMs);
        QCOMPARE(opening.outcome->failures.load(), 0);
        qint64 longest = 0;
        int most = 0;
        for (int i = 0; i < Openings; ++i) {
            QElapsedTimer timer;
            timer.start();
            capture.close();
            const Opening another(capture, m_microphone);
            longest = std::max(longest, timer.elapsed());
            most = std::max(most, DriverThread::count());
            QTest::qWait(10); // lets it come to where it hangs
        }
        QElapsedTimer timer;
        timer.start();
        capture.close();
        longest = std::max(longest, timer.elapsed());
        qInfo("longest call %lld ms, at most %d threads", longest, most);
        QVERIFY(m_server.thaw());
        QVERIFY(longest < LongestCallMs);
        QVERIFY(most <= DriverThread::MaxCount);
        capture.listenOn({});
        QTRY_VERIFY_WITH_TIMEOUT(delivers(capture), TimeoutMs);
    }

    // After the last event, also if nothing was open.
    void closedIsTold()
    {
        WasapiCapture capture;
        for (const bool isOpen : {true, false}) {
            const Opening opening(capture, m_microphone);
            if (!isOpen) {
                capture.close();
            }
            std::atomic_bool isClosed = false;
            capture.close([&isClosed] { isClosed = true; });
            QTRY_VERIFY_WITH_TIMEOUT(isClosed.load(), TimeoutMs);
        }
    }

private:
    // Opens it anew; false if it can't be opened.
    bool delivers(WasapiCapture& capture) const
    {
        const Opening opening(capture, m_microphone);
        const bool isOver = QTest::qWaitFor(
            [&opening] { return opening.outcome->delivers || opening.outcome->failures > 0; },
            TimeoutMs);
        capture.close();
        return isOver && opening.outcome->failures == 0;
    }

    NativeSoundServer m_server;
    QString m_microphone;
    QString m_speaker;
};

QTEST_GUILESS_MAIN(tst_WasapiCapture)
#include "tst_WasapiCapture.moc"
