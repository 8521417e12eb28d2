// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundDevices.h"
#include "tests/devices/SoundTest.h"
#include "tests/support/Dictionary.h"
#include "tests/support/GapMeter.h"
#include "tests/support/PlugStorm.h"

#include <QTest>

using namespace Platform;
using TestSupport::GapMeter;
using TestSupport::SoundServer;

namespace {

class Listener final : public SpeakerBackend::Listener
{
public:
    void speakerListChanged() override { ++lists; }
    void currentSpeakerChanged(const QString& id) override { currents.append(id); }
    void speakerVolumeChanged(int percent) override { volumes.append(percent); }
    void speakerWorkStateChanged(bool works) override { workStates.append(works); }

    int lists = 0;
    QStringList currents;
    QList<int> volumes;
    QList<bool> workStates;
};

} // namespace

class tst_PulseSpeaker : public TestSupport::SoundTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        SoundTest::init();
        m_listener = std::make_unique<Listener>();
        m_speaker = m_sound->createSpeaker(*m_listener);
        QVERIFY(m_sound->speakers().empty());
        QTRY_COMPARE_WITH_TIMEOUT(m_speaker->currentId(), id("speaker_a"), TimeoutMs);
    }

    void cleanup()
    {
        m_speaker.reset();
        SoundTest::cleanup();
    }

    void listsTheDevices()
    {
        QCOMPARE(m_sound->speakers().size(), std::size_t{3});
        QCOMPARE(nameIn(m_sound->speakers(), id("speaker_b")), QStringLiteral("Test Speaker B"));
        QCOMPARE(m_speaker->currentName(), QStringLiteral("Test Speaker A"));
        QTRY_VERIFY(m_listener->lists > 0);
        QTRY_COMPARE(m_listener->currents.value(0), id("speaker_a"));
        QTRY_COMPARE(m_listener->workStates, QList<bool>{true});
        QVERIFY(m_speaker->state() == DeviceState::Ready);

        m_speaker.reset(); // the last user closes the connection
        QVERIFY(m_sound->speakers().empty());
    }

    void followsPlugging()
    {
        const QByteArray twin = m_server->plugSpeaker(id("twin"), QStringLiteral("Test Speaker A"));
        QTRY_COMPARE(nameIn(m_sound->speakers(), id("twin")), QStringLiteral("Test Speaker A (2)"));
        m_server->plugSpeaker(id("markup"), QStringLiteral("<b>Bold</b>"));
        QTRY_COMPARE(nameIn(m_sound->speakers(), id("markup")), QStringLiteral("<b>Bold</b>"));
        m_server->unplug(twin);
        QTRY_COMPARE(nameIn(m_sound->speakers(), id("twin")), QString());
        // After each new list the current speaker is told again.
        QTRY_COMPARE(m_listener->currents.size(), 1 + 3);
        QCOMPARE(m_listener->currents.last(), id("speaker_a"));
    }

    void choosingLeavesTheDefaultAlone()
    {
        m_speaker->setCurrent(id("speaker_b"));
        QVERIFY(m_listener->currents.isEmpty() ||
                m_listener->currents.last() != id("speaker_b")); // never during the call
        QTRY_VERIFY(!m_listener->currents.isEmpty() &&
                    m_listener->currents.last() == id("speaker_b"));
        QCOMPARE(m_speaker->currentName(), QStringLiteral("Test Speaker B"));
        QCOMPARE(m_server->control({id("get-default-sink")}), QByteArray("speaker_a"));

        // And the default doesn't change the choice.
        m_server->control({id("set-default-sink"), id("voice")});
        m_server->plugSpeaker(id("late"),
                              id("Late")); // when this one is listed, the change above is done
        QTRY_COMPARE(nameIn(m_sound->speakers(), id("late")), id("Late"));
        QCOMPARE(m_speaker->currentId(), id("speaker_b"));
    }

    void followsTheDefault()
    {
        m_server->control({id("set-default-sink"), id("speaker_b")});
        QTRY_VERIFY(!m_listener->currents.isEmpty() &&
                    m_listener->currents.last() == id("speaker_b"));
        m_server->unplug(m_server->speakerB());
        QTRY_VERIFY(m_speaker->currentId() != id("speaker_b"));
        QVERIFY(isUsable(m_speaker->state()));
    }

    void chosenDeviceComesBack()
    {
        m_speaker->setCurrent(id("speaker_b"));
        QTRY_COMPARE(m_speaker->currentId(), id("speaker_b"));
        m_server->unplug(m_server->speakerB());
        QTRY_VERIFY(!m_listener->currents.isEmpty() && m_listener->currents.last() == QString());
        QVERIFY(m_speaker->state() == DeviceState::Absent);
        QTRY_VERIFY(!m_listener->workStates.isEmpty() && m_listener->workStates.last() == false);
        m_server->plugSpeaker(id("speaker_b"), QStringLiteral("Test Speaker B"));
        QTRY_VERIFY(!m_listener->currents.isEmpty() &&
                    m_listener->currents.last() == id("speaker_b"));
        QTRY_VERIFY(!m_listener->workStates.isEmpty() && m_listener->workStates.last() == true);
    }

    void dummyOutputIsNoSpeaker()
    {
        const bool isPipeWire = m_server->kind() == SoundServer::Kind::PipeWire;
        m_server->control({id("unload-module"), id("module-null-sink")});
        if (!isPipeWire) {
            m_server->plugSpeaker(id("auto_null"), QStringLiteral("Dummy Output"));
        }
        QTRY_VERIFY(
            m_server->control({id("list"), id("short"), id("sinks")}).contains("auto_null"));
        QTRY_VERIFY(m_sound->speakers().empty());
        QTRY_VERIFY(!m_listener->currents.isEmpty() && m_listener->currents.last() == QString());
        QVERIFY(m_speaker->state() == DeviceState::Absent);
        QCOMPARE(m_speaker->volume(), 0);
    }

    void setsAndReportsTheVolume()
    {
        QTRY_COMPARE(m_speaker->volume(), 100);
        for (int percent = 99; percent >= 37; --percent) { // as if a slider is dragged
            m_speaker->setVolume(percent);
            QCOMPARE(m_speaker->volume(), percent);
        }
        QTRY_VERIFY(sinkVolumes().contains("37%"));
        m_server->control({id("set-sink-volume"), id("speaker_a"), id("61%")});
        QTRY_COMPARE(m_speaker->volume(), 61);
        // Only the change by somebody else was reported.
        QTRY_COMPARE(m_listener->volumes, QList<int>{61});

        m_server->control({id("set-sink-volume"), id("speaker_a"), id("150%")});
        QTRY_VERIFY(!m_listener->volumes.isEmpty() && m_listener->volumes.last() == 100);
        m_speaker->setVolume(-5);
        QTRY_VERIFY(sinkVolumes().contains(" 0%"));
        m_speaker->setVolume(50); // at 0 % the balance is lost, but both sides come back
        QTRY_COMPARE(sinkVolumes().count(" 50%"), 2);
    }

    void volumeKeepsTheBalance()
    {
        m_server->control({id("set-sink-volume"), id("speaker_a"), id("80%"), id("40%")});
        QTRY_COMPARE(m_speaker->volume(), 80);
        m_speaker->setVolume(40);
        QTRY_VERIFY(sinkVolumes().contains(" 20%"));
        QVERIFY(sinkVolumes().contains(" 40%"));
    }

    // As loud as it is. Showing it changes nothing on the server.
    void muteIsVolumeZero()
    {
        m_speaker->setVolume(70);
        QTRY_VERIFY(sinkVolumes().contains(" 70%"));
        m_server->control({id("set-sink-mute"), id("speaker_a"), id("1")});
        QTRY_COMPARE(m_listener->volumes, QList<int>{0});
        QCOMPARE(m_speaker->volume(), 0);
        QVERIFY(isUsable(m_speaker->state()));
        QCOMPARE(m_server->control({id("get-sink-mute"), id("speaker_a")}),
                 QByteArray("Mute: yes"));
        QVERIFY(sinkVolumes().contains(" 70%"));
        QCOMPARE(figures("speaker").value(id("volumeAfter")).toInt(), 70);
        QCOMPARE(figures("speaker").value(id("mutedAfter")).toBool(), true);

        const QList<int> unmuted{0, 70};
        m_server->control({id("set-sink-mute"), id("speaker_a"), id("0")});
        QTRY_COMPARE(m_listener->volumes, unmuted);
        QCOMPARE(m_speaker->volume(), 70);

        m_server->control({id("set-sink-mute"), id("speaker_a"), id("1")});
        QTRY_COMPARE(m_speaker->volume(), 0);
        m_speaker->setVolume(30);
        QCOMPARE(m_speaker->volume(), 30);
        QTRY_COMPARE(m_server->control({id("get-sink-mute"), id("speaker_a")}),
                     QByteArray("Mute: no"));
        QTRY_VERIFY(sinkVolumes().contains(" 30%"));
    }

    void tellsATelephoneFromAHeadset_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<bool>("isTelephone");
        QTest::newRow("PulseAudio") << id("bluetooth.protocol=headset_head_unit") << true;
        QTest::newRow("PulseAudio, hands-free")
            << id("bluetooth.protocol=handsfree_head_unit") << true;
        QTest::newRow("PipeWire") << id("api.bluez5.profile=headset-head-unit") << true;
        QTest::newRow("music") << id("bluetooth.protocol=a2dp_sink") << false;
    }

    void tellsATelephoneFromAHeadset()
    {
        QFETCH(QString, property);
        QFETCH(bool, isTelephone);
        const Dictionary texts({{id("ID_Engine_TelephoneQuality"), id("%1 (telephone)")}});
        m_server->control(
            {id("load-module"), id("module-null-sink"), id("norewinds=1"), id("sink_name=headset"),
             id("sink_properties='device.description=\"Head %1 set\" ") + property + id("'")});
        const QString name = isTelephone ? id("Head %1 set (telephone)") : id("Head %1 set");
        QTRY_COMPARE(nameIn(m_sound->speakers(), id("headset")), name);
        m_speaker->setCurrent(id("headset"));
        QTRY_COMPARE(m_speaker->currentName(), name);
    }

    void settingTheVolumeUnmutes()
    {
        m_speaker.reset();
        m_server->control({id("set-sink-mute"), id("speaker_b"), id("1")});
        m_speaker = m_sound->createSpeaker(*m_listener);
        m_speaker->setCurrent(id("speaker_b"));
        QTRY_COMPARE(m_speaker->currentId(), id("speaker_b"));
        QVERIFY(isUsable(m_speaker->state()));
        m_speaker->setVolume(70);
        QTRY_COMPARE(m_server->control({id("get-sink-mute"), id("speaker_b")}),
                     QByteArray("Mute: no"));
        // At once, as a result that is recorded now was made of it.
        QCOMPARE(this->figures("speaker").value(id("volumeAfter")).toInt(), 70);
        m_speaker.reset();
        const QJsonObject figures = this->figures("speaker");
        QCOMPARE(figures.value(id("device")).toString(), QStringLiteral("Test Speaker B"));
        QCOMPARE(figures.value(id("mutedBefore")).toBool(), true);
        QCOMPARE(figures.value(id("mutedAfter")).toBool(), false);
        QCOMPARE(figures.value(id("volumeBefore")).toInt(), 100);
        QCOMPARE(figures.value(id("volumeAfter")).toInt(), 70);
        QCOMPARE(figures.value(id("movedByUser")).toBool(), true);
        // Choosing a speaker doesn't change the default.
        QCOMPARE(figures.value(id("defaultBefore")).toString(), QStringLiteral("Test Speaker A"));
        QCOMPARE(figures.value(id("defaultAfter")).toString(), QStringLiteral("Test Speaker A"));
    }

    void recordsTheDefaultThatSomebodyElseChanged()
    {
        m_server->control({id("set-default-sink"), id("speaker_b")});
        QTRY_COMPARE(m_speaker->currentId(), id("speaker_b"));
        m_speaker.reset();
        const QJsonObject figures = this->figures("speaker");
        QCOMPARE(figures.value(id("defaultBefore")).toString(), QStringLiteral("Test Speaker A"));
        QCOMPARE(figures.value(id("defaultAfter")).toString(), QStringLiteral("Test Speaker B"));
    }

    void reconnectsToARestartedServer()
    {
        m_speaker->setCurrent(id("speaker_b"));
        QTRY_COMPARE(m_speaker->currentId(), id("speaker_b"));
        GapMeter gaps;
        m_server->kill();
        QTRY_VERIFY(m_sound->speakers().empty());
        QTRY_VERIFY(!m_listener->currents.isEmpty() && m_listener->currents.last() == QString());
        QTRY_VERIFY(!m_listener->workStates.isEmpty() && m_listener->workStates.last() == false);
        QVERIFY2(gaps.longestMs() < MaxGapMs, qPrintable(QString::number(gaps.longestMs())));
        QVERIFY(m_server->start());
        QTRY_VERIFY_WITH_TIMEOUT(!m_listener->currents.isEmpty() &&
                                     m_listener->currents.last() == id("speaker_b"),
                                 TimeoutMs);
        QTRY_VERIFY(!m_listener->workStates.isEmpty() && m_listener->workStates.last() == true);
        QCOMPARE(m_sound->speakers().size(), std::size_t{3});
    }

    void doesNotWaitForAFrozenServer()
    {
        m_server->freeze();
        GapMeter gaps;
        m_speaker->setVolume(20);
        m_speaker->setCurrent(id("speaker_b"));
        const std::unique_ptr<SpeakerBackend> other = m_sound->createSpeaker(*m_listener);
        QCOMPARE(m_speaker->volume(), 20);
        m_speaker.reset();
        QVERIFY2(gaps.longestMs() < MaxGapMs, qPrintable(QString::number(gaps.longestMs())));
        QTRY_COMPARE(other->currentId(), id("speaker_b"));
        m_server->thaw();
        QTRY_VERIFY(sinkVolumes().contains(" 20%"));
    }

    void disconnectsFromAFrozenServer()
    {
        Listener second;
        m_server->freeze();
        GapMeter gaps;
        m_speaker.reset(); // closes the connection, too
        m_speaker = m_sound->createSpeaker(second);
        m_speaker.reset(); // this connection was never established
        QVERIFY2(gaps.longestMs() < MaxGapMs, qPrintable(QString::number(gaps.longestMs())));
        m_server->thaw();
    }

    void survivesManyPluggings()
    {
        constexpr int Events = 1000;
        const TestSupport::PlugStorm storm(*m_server, Events / 2);
        QTRY_VERIFY_WITH_TIMEOUT(storm.isOver(), 60000);
        QCOMPARE(storm.events(), Events);
        m_server->plugSpeaker(id("last"), id("Last"));
        QTRY_COMPARE(nameIn(m_sound->speakers(), id("last")), id("Last"));
        QCOMPARE(nameIn(m_sound->speakers(), id("hasty")), QString());
        QCOMPARE(m_speaker->currentId(), id("speaker_a"));
    }

private:
    QByteArray sinkVolumes() { return m_server->control({id("get-sink-volume"), id("speaker_a")}); }

    std::unique_ptr<Listener> m_listener;
    std::unique_ptr<SpeakerBackend> m_speaker;
};

QTEST_GUILESS_MAIN(tst_PulseSpeaker)
#include "tst_PulseSpeaker.moc"
