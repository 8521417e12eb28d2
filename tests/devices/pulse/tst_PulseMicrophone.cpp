// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/pulse/MicrophoneTest.h"
#include "tests/support/MachineDelay.h"

#include <QTest>
#include <cmath>

using namespace Platform;
using TestSupport::GapMeter;
using TestSupport::SoundSource;

class tst_PulseMicrophone : public TestSupport::MicrophoneTest
{
    Q_OBJECT

private Q_SLOTS:
    void listsNoMonitors()
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
        QTRY_VERIFY(m_listener->isCurrent(QString()));
        QVERIFY(m_microphone->state() == DeviceState::Absent);
    }

    void choosesAMicrophoneOrNone()
    {
        m_server->plugMicrophone(id("second"), id("Second"));
        QTRY_COMPARE(m_microphone->devices().size(), std::size_t{2});
        m_microphone->setCurrent(id("second"));
        QTRY_VERIFY(m_listener->isCurrent(id("second")));
        QCOMPARE(m_server->control({id("get-default-source")}), QByteArray("microphone_a"));

        m_microphone->setCurrent(QString());
        QTRY_VERIFY(m_listener->isCurrent(QString()));
        QVERIFY(m_microphone->state() == DeviceState::Off);
        QTRY_VERIFY(!m_listener->workStates.isEmpty());
        m_microphone->open();
        QCOMPARE(captures(), 0);
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
            QTRY_COMPARE(level(), 0.0); // in silence
        }
    }

    // Some devices have many channels, and some only a telephone's rate.
    void levelsOfUnusualDevices_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("rate");
        QTest::newRow("32 channels") << 32 << 48000;
        QTest::newRow("5 kHz") << 1 << 5000;
        QTest::newRow("32 channels, 5 kHz") << 32 << 5000;
        QTest::newRow("192 kHz") << 2 << 192000;
    }

    void levelsOfUnusualDevices()
    {
        QFETCH(int, channels);
        QFETCH(int, rate);
        m_server->plugSpeaker(id("odd"), id("Odd"), channels, rate);
        m_server->plugMicrophone(id("odd_microphone"), id("Odd microphone"), id("odd"));
        QTRY_COMPARE(m_microphone->devices().size(), std::size_t{2});
        m_microphone->setCurrent(id("odd_microphone"));
        QTRY_VERIFY(m_listener->isCurrent(id("odd_microphone")));
        m_microphone->open();
        const QString fault = TestSupport::measuredFault([&] {
            const SoundSource voice(id("odd"), TestSupport::tone(20.0, 1000.0, -20.0));
            return levelFault(-20.0);
        });
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }

    void tellsWhetherItHeardSound()
    {
        m_microphone->open();
        QTRY_COMPARE(m_listener->levels, QList<double>{0.0});
        QTest::qWait(400);
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

    void isUsableAndSilentWhileMuted()
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

    void setsAndReportsTheVolume()
    {
        QVERIFY(m_microphone->isVolumeAdjustable());
        QTRY_COMPARE(m_microphone->volume(), 100);
        for (int percent = 101; percent <= 150; ++percent) { // as if a slider is dragged
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

    void muteIsVolumeZero()
    {
        m_server->control({id("set-source-volume"), id("microphone_a"), id("80%")});
        QTRY_COMPARE(m_microphone->volume(), 80);
        const int infos = m_listener->infos;
        m_server->control({id("set-source-mute"), id("microphone_a"), id("1")});
        QTRY_COMPARE(m_microphone->volume(), 0);
        QTRY_VERIFY(m_listener->infos > infos); // the page reads the volume again
        QTRY_VERIFY(m_listener->systemVolumes.last() == 0.0F);
        QVERIFY(sourceVolume().contains(" 80%"));
        QVERIFY(m_listener->ownVolumes.isEmpty());

        m_server->control({id("set-source-mute"), id("microphone_a"), id("0")});
        QTRY_COMPARE(m_microphone->volume(), 80);
        QTRY_VERIFY(std::abs(m_listener->systemVolumes.last() - 80.0F) < 0.1F);

        m_server->control({id("set-source-mute"), id("microphone_a"), id("1")});
        QTRY_COMPARE(m_microphone->volume(), 0);
        m_microphone->setVolume(60);
        QCOMPARE(m_microphone->volume(), 60);
        QTRY_COMPARE(m_server->control({id("get-source-mute"), id("microphone_a")}),
                     QByteArray("Mute: no"));
        QTRY_VERIFY(sourceVolume().contains(" 60%"));
    }

    void closesAtOnce()
    {
        m_microphone->open();
        m_microphone->setListening(true);
        QTRY_VERIFY(!m_listener->levels.isEmpty());
        GapMeter gaps;
        m_microphone->setListening(false);
        m_microphone->close();
        m_listener->levels.clear();
        QVERIFY(gaps.longestMs() < MaxGapMs);
        QTest::qWait(100);
        QCOMPARE(m_listener->levels, QList<double>{0.0});
    }

private:
    // Levels during one second of a tone: what is wrong, or empty.
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

    QByteArray sourceVolume()
    {
        return m_server->control({id("get-source-volume"), id("microphone_a")});
    }
};

QTEST_GUILESS_MAIN(tst_PulseMicrophone)
#include "tst_PulseMicrophone.moc"
