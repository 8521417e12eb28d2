// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/LevelMeter.h"
#include "tests/devices/SoundTest.h"
#include "tests/support/GapMeter.h"
#include "tests/support/ListeningRoom.h"
#include "tests/support/MachineDelay.h"
#include "tests/support/ProcessResources.h"
#include "tests/support/SoundRecording.h"

#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <cmath>

using namespace Platform;
using TestSupport::GapMeter;
using TestSupport::SoundRecording;
using TestSupport::SoundServer;
using TestSupport::SoundSource;

namespace {

constexpr int GoneMs = 500;          // a level of nothing is due by then
constexpr double MaxPauseMs = 200.0; // in listening, when a device changes

class MicrophoneListener final : public MicrophoneBackend::Listener
{
public:
    void microphoneListChanged() override { ++lists; }
    void currentMicrophoneChanged(const QString& id) override { currents.append(id); }
    void levelMeasured(double level) override { levels.append(level); }
    void microphoneVolumeChanged(int percent) override { ownVolumes.append(percent); }
    void microphoneInfoChanged() override { ++infos; }
    void microphoneWorkStateChanged(const QString&, bool works) override
    {
        workStates.append(works);
    }
    void systemVolumeChanged(float percent) override { systemVolumes.append(percent); }

    int lists = 0;
    QStringList currents;
    QList<double> levels;
    QList<int> ownVolumes;
    int infos = 0;
    QList<bool> workStates;
    QList<float> systemVolumes;
};

} // namespace

class tst_PulseMicrophone : public TestSupport::SoundTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        SoundTest::init();
        m_listener = std::make_unique<MicrophoneListener>();
        m_microphone = m_sound->createMicrophone(*m_listener);
        QTRY_COMPARE_WITH_TIMEOUT(m_microphone->currentId(), id("microphone_a"), TimeoutMs);
    }

    void cleanup()
    {
        m_speaker.reset();
        m_microphone.reset();
        SoundTest::cleanup();
        m_replaced.clear();
    }

    void monitorsAreNoMicrophones()
    {
        QCOMPARE(m_microphone->devices().size(), std::size_t{1});
        QCOMPARE(m_microphone->currentName(), QStringLiteral("Test Microphone A"));
        QTRY_COMPARE(m_listener->currents.value(0), id("microphone_a"));

        m_server->control({id("set-default-source"), id("speaker_a.monitor")});
        const QByteArray second = m_server->plugMicrophone(id("second"), id("Second"));
        QTRY_COMPARE(m_microphone->devices().size(), std::size_t{2});
        QVERIFY(isUsable(m_microphone->state()));
        QVERIFY(!m_microphone->currentId().contains(id("monitor")));

        m_server->unplug(second);
        m_server->unplug(m_server->microphoneA());
        QTRY_VERIFY(m_microphone->devices().empty());
        QTRY_VERIFY(!m_listener->currents.isEmpty() && m_listener->currents.last() == QString());
        QVERIFY(m_microphone->state() == DeviceState::Absent);
    }

    void choosing()
    {
        m_server->plugMicrophone(id("second"), id("Second"));
        QTRY_COMPARE(m_microphone->devices().size(), std::size_t{2});
        m_microphone->setCurrent(id("second"));
        QTRY_VERIFY(!m_listener->currents.isEmpty() && m_listener->currents.last() == id("second"));
        QCOMPARE(m_server->control({id("get-default-source")}), QByteArray("microphone_a"));

        m_microphone->setCurrent(QString());
        QTRY_VERIFY(!m_listener->currents.isEmpty() && m_listener->currents.last() == QString());
        QVERIFY(m_microphone->state() == DeviceState::Off);
        QTRY_VERIFY(!m_listener->workStates.isEmpty());
        m_microphone->open();
        QCOMPARE(captures(), 0);
    }

    void unpluggedAndPluggedAgain()
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

    void defaultSwitched()
    {
        m_server->plugSpeaker(id("whispers"), id("Whispers"));
        m_server->plugMicrophone(id("second"), id("Second"), id("whispers"));
        QTRY_COMPARE(m_microphone->devices().size(), std::size_t{2});
        SoundSource voice(id("voice"), TestSupport::tone(20.0, 1000.0, -20.0));
        SoundSource whisper(id("whispers"), TestSupport::tone(20.0, 1000.0, -40.0));
        m_microphone->open();
        QTRY_VERIFY(isLevelAt(-20.0));

        // None is chosen: it follows.
        m_server->control({id("set-default-source"), id("second")});
        QTRY_COMPARE(m_listener->currents.last(), id("second"));
        QTRY_VERIFY(isLevelAt(-40.0));
        m_server->control({id("set-default-source"), id("microphone_a")});
        QTRY_COMPARE(m_listener->currents.last(), id("microphone_a"));
        QTRY_VERIFY(isLevelAt(-20.0));
        QCOMPARE(captures(), 1);

        // One is chosen: it stays.
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

    // On PipeWire everything changes its rate as it runs; on PulseAudio the device is replaced.
    void rateChanged()
    {
        m_speaker = m_sound->createSpeaker(m_noListener);
        m_speaker->setCurrent(id("speaker_b"));
        m_microphone->open();
        m_microphone->setListening(true);
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

    void levels()
    {
        m_microphone->open();
        for (const double decibels : {0.0, -6.0, -20.0, -40.0, -60.0}) {
            const QString fault = TestSupport::measuredFault([&] {
                const SoundSource voice(id("voice"), TestSupport::tone(20.0, 1000.0, decibels));
                return levelFault(decibels);
            });
            QVERIFY2(fault.isEmpty(), qPrintable(fault));
            QTRY_COMPARE(level(), 0.0); // silence rests
        }
    }

    void soundIsHeard()
    {
        m_microphone->open();
        QTRY_VERIFY(m_listener->levels.size() > 20);
        QVERIFY(!m_microphone->hasHeardSound());
        QVERIFY(m_microphone->state() == DeviceState::Silent);
        {
            SoundSource whisper(id("voice"), TestSupport::tone(0.5, 300.0, -55.0));
            QVERIFY(whisper.waitForEnd());
        }
        QVERIFY(!m_microphone->hasHeardSound());
        SoundSource voice(id("voice"), TestSupport::tone(0.5, 300.0, -35.0));
        QTRY_VERIFY(m_microphone->hasHeardSound());
        QVERIFY(m_microphone->state() == DeviceState::Working);
        QTRY_VERIFY(!m_listener->workStates.isEmpty() && m_listener->workStates.last() == true);
        QVERIFY(voice.waitForEnd());

        m_microphone->close();
        QVERIFY(m_microphone->hasHeardSound());
        QTRY_COMPARE(captures(), 0);
        const QJsonObject figures = this->figures("microphone");
        QCOMPARE(figures.value(id("device")).toString(), QStringLiteral("Test Microphone A"));
        QCOMPARE(figures.value(id("soundHeard")).toBool(), true);
        QVERIFY(std::abs(figures.value(id("peakDb")).toDouble() + 35.0) < 1.0);
        QCOMPARE(figures.value(id("clippedShare")).toDouble(), 0.0);
        QCOMPARE(figures.value(id("movedByUser")).toBool(), false);
        QCOMPARE(figures.value(id("defaultBefore")).toString(),
                 QStringLiteral("Test Microphone A"));
        QCOMPARE(figures.value(id("defaultAfter")), figures.value(id("defaultBefore")));
        QCOMPARE(figures.value(id("state")).toString(), QStringLiteral("working"));
    }

    void recordsWhyItHeardNothing()
    {
        m_server->unplug(m_server->microphoneA());
        QTRY_VERIFY(m_microphone->state() == DeviceState::Absent);
        m_microphone->open();
        m_microphone->close();
        const QJsonObject figures = this->figures("microphone");
        QCOMPARE(figures.value(id("state")).toString(), QStringLiteral("absent"));
        QVERIFY(!figures.contains(id("soundHeard")));
        QVERIFY(!figures.contains(id("volumeBefore")));
    }

    void mutedIsUsableAndSilent()
    {
        m_server->control({id("set-source-mute"), id("microphone_a"), id("1")});
        m_microphone->open();
        SoundSource voice(id("voice"), TestSupport::tone(20.0, 440.0, -20.0));
        QTest::qWait(500);
        QCOMPARE(level(), 0.0);
        QVERIFY(isUsable(m_microphone->state()));
        QVERIFY(!m_microphone->hasHeardSound());
        m_microphone->setVolume(100);
        QTRY_VERIFY(level() > 0.6);
        QCOMPARE(m_server->control({id("get-source-mute"), id("microphone_a")}),
                 QByteArray("Mute: no"));
    }

    void volume()
    {
        QVERIFY(m_microphone->isVolumeAdjustable());
        QTRY_COMPARE(m_microphone->volume(), 100);
        for (int percent = 101; percent <= 150; ++percent) { // a slider being dragged
            m_microphone->setVolume(percent);
        }
        QCOMPARE(m_microphone->volume(), 150);
        QTRY_VERIFY(!m_listener->ownVolumes.isEmpty() && m_listener->ownVolumes.last() == 150);
        QTRY_VERIFY(sourceVolume().contains("150%"));
        QVERIFY(m_listener->systemVolumes.isEmpty());

        m_server->control({id("set-source-volume"), id("microphone_a"), id("40%")});
        QTRY_COMPARE(m_listener->systemVolumes.size(), 1);
        QVERIFY(std::abs(m_listener->systemVolumes.last() - 40.0F) < 0.1F);
        QCOMPARE(m_microphone->volume(), 40);

        const int infos = m_listener->infos;
        m_server->control({id("set-source-mute"), id("microphone_a"), id("1")});
        QTRY_COMPARE(m_listener->infos, infos + 1);
    }

    void listening()
    {
        m_speaker = m_sound->createSpeaker(m_noListener);
        m_speaker->setCurrent(id("speaker_b"));
        m_microphone->open();
        m_microphone->setListening(true);
        SoundRecording chosen(id("speaker_b.monitor"));
        SoundRecording other(id("speaker_a.monitor"));
        QVERIFY(chosen.waitForStart());
        QVERIFY(other.waitForStart());
        SoundSource voice(id("voice"), TestSupport::tone(60.0, 440.0, -20.0));
        QTRY_VERIFY(chosen.peak() > 0.05F);
        QVERIFY(other.peak() < Audible);

        m_speaker->setCurrent(id("speaker_a"));
        QTRY_VERIFY(other.peak() > 0.05F);

        // The level goes on without it; without the stream there is neither.
        m_microphone->setListening(false);
        QTRY_COMPARE(playbacks(), 1); // the voice
        QVERIFY(level() > 0.6);
        m_microphone->setListening(true);
        QTRY_COMPARE(playbacks(), 2);
        m_microphone->close();
        QTRY_COMPARE(playbacks(), 1);
        QTRY_COMPARE(captures(), 0);
        QTRY_COMPARE(level(), 0.0);
    }

    void listeningIsPrompt()
    {
        constexpr int Bursts = 12;
        constexpr double MaxMedianMs = 30.0;
        constexpr double MaxDelayMs = 60.0;
        TestSupport::ListeningRoom room(*m_server);
        QVERIFY(room.isBuilt());
        m_speaker = m_sound->createSpeaker(m_noListener);
        m_speaker->setCurrent(id("room_speaker"));
        m_microphone->setCurrent(id("room_microphone"));
        m_microphone->open();
        m_microphone->setListening(true);
        QTRY_VERIFY(m_listener->levels.size() > 20);
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

    void closingIsAtOnce()
    {
        m_microphone->open();
        m_microphone->setListening(true);
        QTRY_VERIFY(m_listener->levels.size() > 10);
        GapMeter gaps;
        m_microphone->setListening(false);
        m_microphone->close();
        m_listener->levels.clear();
        QVERIFY(gaps.longestMs() < MaxGapMs);
        QTest::qWait(100);
        QCOMPARE(m_listener->levels, QList<double>{0.0});
    }

    void comesBackWithTheServer()
    {
        m_microphone->open();
        m_microphone->setListening(true);
        QTRY_VERIFY(m_listener->levels.size() > 10);
        GapMeter gaps;
        m_server->kill();
        QTRY_VERIFY(!m_listener->currents.isEmpty() && m_listener->currents.last() == QString());
        QVERIFY(m_microphone->state() == DeviceState::Absent);
        QCOMPARE(level(), 0.0);
        QVERIFY2(gaps.longestMs() < MaxGapMs, qPrintable(QString::number(gaps.longestMs())));
        QVERIFY(m_server->start());
        QTRY_VERIFY_WITH_TIMEOUT(!m_listener->currents.isEmpty() &&
                                     m_listener->currents.last() == id("microphone_a"),
                                 TimeoutMs);
        SoundSource voice(id("voice"), TestSupport::tone(20.0, 440.0, -20.0));
        QTRY_VERIFY_WITH_TIMEOUT(level() > 0.6, TimeoutMs);
        QTRY_COMPARE(playbacks(), 2);
    }

    void comesBackAfterItsConnections_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::newRow("that of listening") << QByteArray("Listening to oneself");
        QTest::newRow("that of all else") << QByteArray("Microphone check");
    }

    // The server ends one of them and keeps the other.
    void comesBackAfterItsConnections()
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

    void frozenServer()
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

    // The microphone stands beside its own speaker, and is turned up.
    void doesNotHowl()
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
        qInfo("loudest %.1f dBFS, above -20 dBFS %.0f %% of the time",
              TestSupport::decibels(loudest), 100.0 * share);
        QVERIFY(loudest < 0.7);
        QVERIFY(share < 0.4);
    }

private:
    double level() const { return m_listener->levels.isEmpty() ? -1.0 : m_listener->levels.last(); }

    bool isLevelAt(double decibels) const { return isAt(level(), decibels); }

    // What is wrong with the levels of a second of a tone.
    QString levelFault(double decibels)
    {
        bool isRight = QTest::qWaitFor([&] { return isLevelAt(decibels); }, TimeoutMs);
        QTest::qWait(300);
        m_listener->levels.clear();
        QTest::qWait(1000);
        const int count = m_listener->levels.size();
        isRight = isRight && areLevelsAt(decibels) && count >= 30;
        const QString figures = QStringLiteral("%1 dBFS: level %2, %3 a second")
                                    .arg(decibels)
                                    .arg(level(), 0, 'f', 3)
                                    .arg(count);
        qInfo("%s", qPrintable(figures));
        return isRight ? QString() : figures;
    }

    bool areLevelsAt(double decibels) const
    {
        const QList<double>& levels = m_listener->levels;
        return !levels.isEmpty() &&
               std::all_of(levels.begin(), levels.end(),
                           [decibels](double level) { return isAt(level, decibels); });
    }

    static bool isAt(double level, double decibels)
    {
        return std::abs(level - (1.0 + decibels / 60.0)) < 0.01;
    }

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

    int microphoneRate() // as the server tells it: "... 2ch 48000Hz ..."
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

    QByteArray sourceVolume()
    {
        return m_server->control({id("get-source-volume"), id("microphone_a")});
    }

    // Streams other than those that recording the monitors and the virtual devices take.
    int captures()
    {
        return m_server->control({id("list"), id("source-outputs")}).count("Microphone check");
    }

    int playbacks()
    {
        const QByteArray list = m_server->control({id("list"), id("sink-inputs")});
        return list.count("Listening to oneself") + list.count("application.name = \"pacat\"");
    }

    QByteArray m_replaced; // module of the microphone that stands for the first one
    std::unique_ptr<MicrophoneListener> m_listener;
    std::unique_ptr<MicrophoneBackend> m_microphone;
    std::unique_ptr<SpeakerBackend> m_speaker;
};

QTEST_GUILESS_MAIN(tst_PulseMicrophone)
#include "tst_PulseMicrophone.moc"
