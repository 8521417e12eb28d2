// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/pulse/MicrophoneTest.h"
#include "tests/support/ProcessResources.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <algorithm>
#include <cmath>

using namespace Platform;
using TestSupport::GapMeter;
using TestSupport::SoundRecording;
using TestSupport::SoundServer;
using TestSupport::SoundSource;

namespace {

constexpr int GoneMs = 500;          // the level drops to zero within this time
constexpr double MaxPauseMs = 200.0; // in listening, when a device changes

} // namespace

// Devices and servers that change or fail while the microphone is open.
class tst_PulseMicrophoneFaults : public TestSupport::MicrophoneTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        MicrophoneTest::cleanup();
        m_replaced.clear();
    }

    void survivesReplugging()
    {
        m_microphone->setCurrent(id("microphone_a"));
        m_microphone->open();
        SoundSource voice(id("voice"), TestSupport::tone(20.0, 440.0, -20.0));
        QTRY_VERIFY(level() > 0.6);
        m_server->unplug(m_server->microphoneA());
        QElapsedTimer clock;
        clock.start();
        QTRY_COMPARE(level(), 0.0);
        QVERIFY(clock.elapsed() < GoneMs);
        QTRY_VERIFY(m_microphone->state() == DeviceState::Absent);
        QCOMPARE(m_microphone->currentId(), id("microphone_a"));
        QCOMPARE(m_microphone->currentName(), QStringLiteral("Test Microphone A"));

        m_server->plugMicrophone(id("microphone_a"), QStringLiteral("Test Microphone A"));
        QTRY_VERIFY_WITH_TIMEOUT(level() > 0.6, TimeoutMs);
    }

    void followsTheDefaultUnlessOneIsChosen()
    {
        m_server->plugSpeaker(id("whispers"), id("Whispers"));
        m_server->plugMicrophone(id("second"), id("Second"), id("whispers"));
        QTRY_COMPARE(m_microphone->devices().size(), std::size_t{2});
        SoundSource voice(id("voice"), TestSupport::tone(20.0, 1000.0, -20.0));
        SoundSource whisper(id("whispers"), TestSupport::tone(20.0, 1000.0, -40.0));
        m_microphone->open();
        QTRY_VERIFY(isLevelAt(-20.0));

        // None is chosen, so the default counts.
        m_server->control({id("set-default-source"), id("second")});
        QTRY_COMPARE(m_listener->currents.last(), id("second"));
        QTRY_VERIFY(isLevelAt(-40.0));
        m_server->control({id("set-default-source"), id("microphone_a")});
        QTRY_COMPARE(m_listener->currents.last(), id("microphone_a"));
        QTRY_VERIFY(isLevelAt(-20.0));
        QCOMPARE(captures(), 1);

        // One is chosen, so the default doesn't matter.
        m_microphone->setCurrent(id("second"));
        QTRY_VERIFY(isLevelAt(-40.0));
        const int currents = m_listener->currents.size();
        for (const char* other : {"second", "microphone_a"}) {
            m_server->control({id("set-default-source"), id(other)});
            QTRY_COMPARE(m_server->control({id("get-default-source")}), QByteArray(other));
            m_listener->levels.clear();
            QTest::qWait(GoneMs);
            QVERIFY(areLevelsAt(-40.0));
        }
        QCOMPARE(m_listener->currents.size(), currents);
        QCOMPARE(m_microphone->currentId(), id("second"));
        QCOMPARE(captures(), 1);
    }

    // PipeWire changes the rate of everything while it runs. On PulseAudio the device is replaced.
    void survivesAnotherSampleRate()
    {
        listenOn("speaker_b");
        SoundRecording speaker(id("speaker_b.monitor"));
        SoundSource voice(id("voice"), TestSupport::tone(30.0, 1000.0, -20.0));
        QTRY_VERIFY(speaker.peak() > 0.05F);
        for (const int rate : {44100, 48000}) {
            QTRY_VERIFY(isLevelAt(-20.0));
            m_listener->levels.clear();
            speaker.forget();
            QElapsedTimer clock;
            clock.start();
            setRate(rate);
            QTRY_COMPARE(microphoneRate(), rate);
            QTest::qWait(1000);
            const double aSecond =
                1000.0 * m_listener->levels.size() / static_cast<double>(clock.elapsed());
            const double pause = longestSilenceMs(speaker.samples());
            qInfo("%d Hz: %.0f levels a second, nothing heard for %.0f ms", rate, aSecond, pause);
            QVERIFY(aSecond >= 30.0);
            QVERIFY(pause < MaxPauseMs);

            QTRY_VERIFY(isLevelAt(-20.0));
            m_listener->levels.clear();
            speaker.forget();
            QTest::qWait(300);
            QVERIFY(areLevelsAt(-20.0));
            const std::vector<float> heard = speaker.samples();
            QVERIFY(TestSupport::rms(heard, 0, heard.size()) > 0.05);
        }
    }

    void reconnectsToARestartedServer()
    {
        m_microphone->open();
        m_microphone->setListening(true);
        QTRY_VERIFY(!m_listener->levels.isEmpty());
        GapMeter gaps;
        m_server->kill();
        QTRY_VERIFY(m_listener->isCurrent(QString()));
        QVERIFY(m_microphone->state() == DeviceState::Absent);
        QCOMPARE(level(), 0.0);
        QVERIFY2(gaps.longestMs() < MaxGapMs, qPrintable(QString::number(gaps.longestMs())));
        QVERIFY(m_server->start());
        QTRY_VERIFY_WITH_TIMEOUT(m_listener->isCurrent(id("microphone_a")), TimeoutMs);
        SoundSource voice(id("voice"), TestSupport::tone(20.0, 440.0, -20.0));
        QTRY_VERIFY_WITH_TIMEOUT(level() > 0.6, TimeoutMs);
        QTRY_COMPARE(playbacks(), 2);
    }

    void reopensAfterALostConnection_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::newRow("connection for listening") << QByteArray("Listening to oneself");
        QTest::newRow("connection for all else") << QByteArray("Microphone check");
    }

    // The program has two connections; the server ends one of them.
    void reopensAfterALostConnection()
    {
        constexpr double TornMs = 10.0;
        constexpr double MaxSilenceMs = 1000.0;
        QFETCH(QByteArray, stream);
        const bool isOfListening = stream.startsWith("Listening");
        m_microphone->setCurrent(id("microphone_a"));
        m_microphone->open();
        m_microphone->setListening(true);
        SoundRecording speaker(id("speaker_a.monitor"));
        SoundSource voice(id("voice"), TestSupport::tone(60.0, 440.0, -20.0));
        QTRY_VERIFY(speaker.peak() > 0.05F);
        QTRY_VERIFY(level() > 0.6);
        const int handles = ProcessResources::openHandles();
        for (int round = 0; round < 2; ++round) {
            m_listener->levels.clear();
            speaker.forget();
            QVERIFY(m_server->cutConnection(stream));
            GapMeter gaps;
            QTRY_VERIFY(isOfListening || m_listener->levels.contains(0.0));
            QTRY_VERIFY(longestSilenceMs(speaker.samples()) > TornMs);
            QTRY_VERIFY(silenceAtEndMs(speaker.samples()) < TornMs);
            QTRY_VERIFY(level() > 0.6);
            QVERIFY(gaps.longestMs() < MaxGapMs);
            const double silence = longestSilenceMs(speaker.samples());
            qInfo("nothing heard for %.0f ms", silence);
            QVERIFY(silence < MaxSilenceMs);
            QVERIFY(!isOfListening || !m_listener->levels.contains(0.0));
            QTRY_COMPARE(captures(), 1);
            QTRY_COMPARE(playbacks(), 2);
        }
        QTRY_COMPARE(ProcessResources::openHandles(), handles);
    }

    void survivesAFrozenServer()
    {
        m_microphone->open();
        m_microphone->setListening(true);
        SoundSource voice(id("voice"), TestSupport::tone(20.0, 440.0, -20.0));
        QTRY_VERIFY(level() > 0.6);
        GapMeter gaps;
        m_server->freeze();
        QElapsedTimer clock;
        clock.start();
        QTRY_COMPARE(level(), 0.0);
        QVERIFY(clock.elapsed() < GoneMs);
        QTRY_VERIFY(m_microphone->state() == DeviceState::Hung);
        QTest::qWait(1000);
        m_microphone->setListening(false);
        m_microphone->close();
        m_microphone->open();
        QTest::qWait(300);
        m_server->thaw();
        QTRY_VERIFY_WITH_TIMEOUT(level() > 0.6, TimeoutMs);
        QVERIFY2(gaps.longestMs() < MaxGapMs, qPrintable(QString::number(gaps.longestMs())));
        m_server->freeze();
        GapMeter leaving;
        m_microphone.reset();
        QVERIFY(leaving.longestMs() < MaxGapMs);
        m_server->thaw();
    }

private:
    static double longestSilenceMs(const std::vector<float>& heard)
    {
        int longest = 0;
        int silent = 0;
        for (const float sample : heard) {
            silent = std::abs(sample) < Audible ? silent + 1 : 0;
            longest = std::max(longest, silent);
        }
        return 1000.0 * longest / SoundRecording::Rate;
    }

    static double silenceAtEndMs(const std::vector<float>& heard)
    {
        const auto last = std::find_if(heard.rbegin(), heard.rend(),
                                       [](float sample) { return std::abs(sample) >= Audible; });
        return 1000.0 * static_cast<double>(last - heard.rbegin()) / SoundRecording::Rate;
    }

    void setRate(int rate)
    {
        if (m_server->kind() == SoundServer::Kind::PipeWire) {
            QProcess settings;
            settings.start(id("pw-metadata"), {id("-n"), id("settings"), id("0"),
                                               id("clock.force-rate"), QString::number(rate)});
            QVERIFY(settings.waitForFinished());
            QCOMPARE(settings.exitCode(), 0);
        } else {
            m_server->unplug(m_replaced.isEmpty() ? m_server->microphoneA() : m_replaced);
            m_replaced = m_server->control(
                {id("load-module"), id("module-remap-source"), id("source_name=microphone_a"),
                 id("master=voice.monitor"), QStringLiteral("rate=%1").arg(rate)});
        }
    }

    int microphoneRate() // the server prints "... 2ch 48000Hz ..."
    {
        const QList<QByteArray> lines =
            m_server->control({id("list"), id("short"), id("sources")}).split('\n');
        for (const QByteArray& line : lines) {
            if (line.contains("\tmicrophone_a\t")) {
                return line.mid(line.indexOf("ch ") + 3, 5).toInt();
            }
        }
        return 0;
    }

    QByteArray m_replaced; // module of the microphone that replaced "microphone_a"
};

QTEST_GUILESS_MAIN(tst_PulseMicrophoneFaults)
#include "tst_PulseMicrophoneFaults.moc"
