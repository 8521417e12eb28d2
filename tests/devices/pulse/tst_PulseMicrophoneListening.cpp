// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundMath.h"
#include "tests/devices/pulse/MicrophoneTest.h"
#include "tests/support/ListeningRoom.h"
#include "tests/support/MachineDelay.h"

#include <QTest>
#include <algorithm>
#include <cmath>

using namespace Platform;
using TestSupport::SoundRecording;
using TestSupport::SoundSource;

// Listening to oneself.
class tst_PulseMicrophoneListening : public TestSupport::MicrophoneTest
{
    Q_OBJECT

private Q_SLOTS:
    void playsOnTheChosenSpeaker()
    {
        listenOn("speaker_b");
        SoundRecording chosen(id("speaker_b.monitor"));
        SoundRecording other(id("speaker_a.monitor"));
        QVERIFY(chosen.waitForStart());
        QVERIFY(other.waitForStart());
        SoundSource voice(id("voice"), TestSupport::tone(60.0, 440.0, -20.0));
        QTRY_VERIFY(chosen.peak() > 0.05F);
        QVERIFY(other.peak() < Audible);

        m_speaker->setCurrent(id("speaker_a"));
        QTRY_VERIFY(other.peak() > 0.05F);

        // Without listening the level goes on; a closed microphone has neither.
        m_microphone->setListening(false);
        QTRY_COMPARE(playbacks(), 1); // pacat
        QVERIFY(level() > 0.6);
        m_microphone->setListening(true);
        QTRY_COMPARE(playbacks(), 2);
        m_microphone->close();
        QTRY_COMPARE(playbacks(), 1);
        QTRY_COMPARE(captures(), 0);
        QTRY_COMPARE(level(), 0.0);
    }

    void hasLittleDelay()
    {
        constexpr int Bursts = 12;
        constexpr double MaxMedianMs = 30.0;
        constexpr double MaxDelayMs = 60.0;
        TestSupport::ListeningRoom room(*m_server);
        QVERIFY(room.isBuilt());
        m_microphone->setCurrent(id("room_microphone"));
        listenOn("room_speaker");
        QTRY_COMPARE(playbacks(), 1);
        const QString fault = TestSupport::measuredFault([&room] {
            std::vector<double> delays = room.measureDelays(Bursts);
            if (delays.size() != Bursts) {
                return QStringLiteral("%1 bursts").arg(delays.size());
            }
            std::sort(delays.begin(), delays.end());
            const double median = delays[Bursts / 2];
            const QString figures = QStringLiteral("delay %1 to %2 ms, median %3")
                                        .arg(delays.front(), 0, 'f', 1)
                                        .arg(delays.back(), 0, 'f', 1)
                                        .arg(median, 0, 'f', 1);
            qInfo("%s", qPrintable(figures));
            const bool isNoneLost = delays.front() > 0.0;
            const bool isPrompt = delays.back() < MaxDelayMs && median < MaxMedianMs;
            return isNoneLost && isPrompt ? QString() : figures;
        });
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }

    // The microphone records its own speaker, at full volume.
    void limitsFeedback()
    {
        m_server->plugMicrophone(id("near"), id("Near"), id("speaker_a"));
        QTRY_COMPARE(m_microphone->devices().size(), std::size_t{2});
        m_microphone->setCurrent(id("near"));
        QTRY_COMPARE(m_microphone->currentId(), id("near"));
        m_microphone->setVolume(150);
        m_microphone->open();
        m_microphone->setListening(true);
        SoundRecording speaker(id("speaker_a.monitor"));
        QVERIFY(speaker.waitForStart());
        {
            SoundSource clap(id("speaker_a"), TestSupport::tone(0.2, 800.0, -20.0));
            QTRY_VERIFY(speaker.peak() > Audible);
        }
        QTest::qWait(3000);
        const std::vector<float> heard = speaker.samples();
        double loudest = 0.0;
        double loud = 0.0;
        for (const float sample : heard) {
            loudest = std::max(loudest, static_cast<double>(std::abs(sample)));
            loud += std::abs(sample) > 0.1F ? 1.0 : 0.0;
        }
        const double share = loud / static_cast<double>(heard.size());
        qInfo("loudest %.1f dBFS, above -20 dBFS %.0f %% of the time", decibelsOfAmplitude(loudest),
              100.0 * share);
        QVERIFY(loudest < 0.7);
        QVERIFY(share < 0.4);
    }
};

QTEST_GUILESS_MAIN(tst_PulseMicrophoneListening)
#include "tst_PulseMicrophoneListening.moc"
