// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/HeadsetPage.h"
#include "tests/devices/SoundDialogTest.h"
#include "tests/devices/SoundFiles.h"
#include "tests/support/MachineDelay.h"
#include "tests/support/PlugStorm.h"
#include "tests/support/PopupChoice.h"
#include "tests/support/SoundRecording.h"

#include <LumMedia/AudioPlayer.h>

#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <memory>
#include <optional>

using namespace TestSupport;

namespace {

constexpr int LongMs = 8000;
#ifdef Q_OS_WIN
constexpr double AlikeAtLeast = 0.8; // a busy machine tears the sound under Wine
#else
constexpr double AlikeAtLeast = 0.95;
#endif
constexpr int PlugEvents = 1000;

} // namespace

// The speaker page in the real dialog, on the real engine and real sound servers.
class tst_SpeakerDialog : public SoundDialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void playsTheSoundAndTakesTheAnswer();
    void leavesTheServerAsItWas_data();
    void leavesTheServerAsItWas();
    void unmutesIfTheSliderMoves();
    void neverBlocksWhileTheServerIsFrozen();
    void survivesTheServersDeath();
    void saysWhatTheServerDoes();
    void followsDevicesDuringASound();
    void survivesManyPluggings();
    void pageLeavesNoSoundBehind();
    void speakerLeavesNoPlayerBehind();

private:
    void openSpeakerPage() const { m_dialog->click("label_SoundCheck"); }
    bool isPlaying() const { return !m_dialog->child<QWidget>("tb_play_test_sound")->isEnabled(); }
    bool isSpeakerThere() const;
    QString chosen() const { return box()->currentData().toString(); }
    QComboBox* box() const { return m_dialog->child<QComboBox>("cb_ad_output_name"); }
    QSlider* slider() const;
    void play(SoundRecording& recording) const;
    void choose(const QString& speakerId) const;
    QRadioButton* answerFor(const QString& soundFile) const;
    void keepFrame(const char* state) const;
    QByteArray volumeOf(const char* speakerId);
    QByteArray sounds() { return m_server->control({id("list"), id("short"), id("sink-inputs")}); }
};

// As a user does: choose the device and the volume, play, listen, select the sound, answer yes.
void tst_SpeakerDialog::playsTheSoundAndTakesTheAnswer()
{
    SoundRecording chosenOne(id("speaker_b.monitor"));
    SoundRecording other(id("speaker_a.monitor"));
    QVERIFY(chosenOne.waitForStart());
    QVERIFY(other.waitForStart());
    m_server->control({id("set-sink-volume"), id("speaker_b"), id("90%")});
    QVERIFY(m_dialog->run([&] {
        openSpeakerPage();
        QTRY_COMPARE(slider()->value(), 100);
        choose(id("speaker_b"));
        QTRY_COMPARE(slider()->value(), 90);
        slider()->setValue(80);
        QTRY_COMPARE(volumeOf("speaker_b").count(" 80%"), 2);
        keepFrame("idle");

        QString heard;
        const QString fault = measuredFault([&] {
            chosenOne.forget();
            play(chosenOne);
            keepFrame("playing");
            const bool isOver = QTest::qWaitFor([this] { return !isPlaying(); }, LongMs);
            keepFrame("finished");
            const std::vector<double> alike = compareWithSounds(chosenOne.samples());
            const auto best = std::max_element(alike.begin(), alike.end());
            heard = soundNames().at(static_cast<int>(best - alike.begin()));
            return isOver && *best > AlikeAtLeast ? QString()
                                                  : QStringLiteral("%1: %2").arg(heard).arg(*best);
        });
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
        QVERIFY(other.peak() < Audible);
        QRadioButton* answer = answerFor(heard);
        QVERIFY2(answer, qPrintable(heard));
        QTest::mouseClick(answer, Qt::LeftButton, {}, QPoint(8, answer->height() / 2));
        QVERIFY(answer->isChecked());
        keepFrame("answered");
        m_dialog->click("Btn_CanHear");
        openSpeakerPage();
        m_dialog->click("label_MicCheck"); // leaving the page records the answer

        openSpeakerPage();
        m_server->unplug(m_server->speakerB());
        QTRY_VERIFY(!isSpeakerThere());
        keepFrame("no-headset");
    }));
    const QJsonObject results =
        m_dialog->results().value(id("results")).toObject().value(id("speaker")).toObject();
    QCOMPARE(results.value(id("userState")).toInt(), 1);
}

void tst_SpeakerDialog::leavesTheServerAsItWas_data()
{
    QTest::addColumn<bool>("isSliderMoved");
    QTest::newRow("nothing moved") << false;
    QTest::newRow("slider moved") << true;
}

// A run through all steps changes no volume, no mute and no default.
void tst_SpeakerDialog::leavesTheServerAsItWas()
{
    QFETCH(bool, isSliderMoved);
    m_server->control({id("set-sink-volume"), id("speaker_a"), id("71%"), id("43%")});
    m_server->control({id("set-sink-volume"), id("speaker_b"), id("130%")});
    m_server->control({id("set-sink-mute"), id("speaker_b"), id("1")});
    m_server->control({id("set-source-volume"), id("microphone_a"), id("87%")});
    const QStringList before = m_server->state();
    SoundRecording recording(id("speaker_a.monitor"));
    QVERIFY(recording.waitForStart());
    QVERIFY(m_dialog->run([&] {
        m_dialog->click("label_CameraCheck");
        openSpeakerPage();
        QTRY_COMPARE(chosen(), id("speaker_a"));
        play(recording);
        choose(id("speaker_b"));
        QTRY_COMPARE(chosen(), id("speaker_b"));
        choose(id("speaker_a"));
        QTRY_COMPARE(chosen(), id("speaker_a"));
        if (isSliderMoved) {
            slider()->setValue(20);
            QTRY_VERIFY(volumeOf("speaker_a").contains(" 20%"));
        }
        m_dialog->click("Btn_CantListen");
        m_dialog->click("label_MicCheck");
        QTRY_VERIFY(m_dialog->child<QWidget>("Btn_Record")->isEnabled());
        m_dialog->click("Btn_Record");
        QTRY_VERIFY(!m_server->control({id("list"), id("short"), id("source-outputs")}).isEmpty());
        m_dialog->click("label_SystemCheck");
    }));
    QStringList after = m_server->state();
    QStringList expected = before;
    if (isSliderMoved) {
        const auto isMoved = [](const QString& line) { return line.startsWith("speaker_a\t"); };
        QVERIFY(after.filter("speaker_a\t") != expected.filter("speaker_a\t"));
        expected.erase(std::remove_if(expected.begin(), expected.end(), isMoved), expected.end());
        after.erase(std::remove_if(after.begin(), after.end(), isMoved), after.end());
        QCOMPARE(expected.size(), before.size() - 1);
    }
    QCOMPARE(after, expected);
}

void tst_SpeakerDialog::unmutesIfTheSliderMoves()
{
    m_server->control({id("set-sink-mute"), id("speaker_a"), id("1")});
    SoundRecording recording(id("speaker_a.monitor"));
    QVERIFY(recording.waitForStart());
    QVERIFY(m_dialog->run([&] {
        openSpeakerPage();
        QTRY_COMPARE(chosen(), id("speaker_a"));
        QVERIFY(slider()->isEnabled()); // a muted device works
        QCOMPARE(slider()->value(), 0); // and this is how loud it is
        m_server->control({id("set-sink-mute"), id("speaker_a"), id("0")});
        QTRY_COMPARE(slider()->value(), 100);
        m_server->control({id("set-sink-mute"), id("speaker_a"), id("1")});
        QTRY_COMPARE(slider()->value(), 0);
        m_dialog->click("tb_play_test_sound");
        QTRY_VERIFY(!m_server->control({id("list"), id("short"), id("sink-inputs")}).isEmpty());
        QVERIFY(recording.peak() < Audible);
        QCOMPARE(m_server->control({id("get-sink-mute"), id("speaker_a")}),
                 QByteArray("Mute: yes"));
        slider()->setValue(64);
        QTRY_COMPARE(m_server->control({id("get-sink-mute"), id("speaker_a")}),
                     QByteArray("Mute: no"));
        QTRY_VERIFY(recording.peak() > Audible);
    }));
    const QJsonObject figures =
        m_dialog->results().value(id("measurements")).toObject().value(id("speaker")).toObject();
    QCOMPARE(figures.value(id("mutedBefore")), QJsonValue(true));
    QCOMPARE(figures.value(id("mutedAfter")), QJsonValue(false));
    QCOMPARE(figures.value(id("movedByUser")), QJsonValue(true));
    QCOMPARE(figures.value(id("volumeAfter")), QJsonValue(64));
}

void tst_SpeakerDialog::neverBlocksWhileTheServerIsFrozen()
{
    // Once before measuring: the first pages load texts and fonts, which takes time on any server.
    QVERIFY(m_dialog->run([this] { openSpeakerPage(); }));

    m_server->freeze();
    QVERIFY(m_dialog->run([&] {
        m_dialog->meter("frozen while the dialog opens", [&] {
            openSpeakerPage();
            QTest::qWait(DeviceDialog::freezeMs());
            QVERIFY(!isSpeakerThere());
        });
        m_server->thaw();
        QTRY_COMPARE_WITH_TIMEOUT(chosen(), id("speaker_a"), LongMs);
        QVERIFY(isSpeakerThere());

        m_dialog->click("label_CameraCheck");
        meterFrozen("frozen while the page opens", [this] { openSpeakerPage(); });
        QCOMPARE(chosen(), id("speaker_a"));

        meterFrozen("frozen at the click on play",
                    [this] { m_dialog->click("tb_play_test_sound"); });
        QTRY_VERIFY_WITH_TIMEOUT(!isPlaying(), LongMs);

        SoundRecording recording(id("speaker_a.monitor"));
        QVERIFY(recording.waitForStart());
        play(recording);
        meterFrozen("frozen during a sound", [] {});
        QTRY_VERIFY_WITH_TIMEOUT(!isPlaying(), LongMs);

        meterFrozen("frozen while the slider is dragged", [this] {
            for (int value = 99; value >= 40; --value) {
                slider()->setValue(value);
            }
        });
        QTRY_VERIFY(volumeOf("speaker_a").contains(" 40%"));

        meterFrozen("frozen while a device is chosen", [this] { choose(id("speaker_b")); });
        QTRY_COMPARE(chosen(), id("speaker_b"));

        choose(id("speaker_a"));
        QTRY_COMPARE(chosen(), id("speaker_a"));
        slider()->setValue(100);
        play(recording);
        meterFrozen("frozen while the page is left during a sound",
                    [this] { m_dialog->click("label_CameraCheck"); });

        openSpeakerPage();
        m_dialog->click("tb_play_test_sound");
        m_server->freeze();
    }));
    // The dialog was closed during a sound, with a frozen server.
    m_server->thaw();
    QTRY_COMPARE(m_server->control({id("list"), id("short"), id("sink-inputs")}), QByteArray());
    QVERIFY2(m_dialog->worstGapMs() < MaxDialogGapMs,
             qPrintable(QString::number(m_dialog->worstGapMs())));
}

void tst_SpeakerDialog::survivesTheServersDeath()
{
    QVERIFY(m_dialog->run([&] {
        openSpeakerPage();
        QTRY_COMPARE(chosen(), id("speaker_a"));
        choose(id("speaker_b"));
        QTRY_COMPARE(chosen(), id("speaker_b"));
        SoundRecording recording(id("speaker_b.monitor"));
        QVERIFY(recording.waitForStart());
        play(recording);
        m_dialog->meter("killed during a sound", [&] {
            m_server->kill();
            QTRY_VERIFY(!isPlaying());
            QTRY_VERIFY(!isSpeakerThere());
        });
        m_dialog->meter("the page left and opened without a server", [this] {
            m_dialog->click("label_CameraCheck");
            openSpeakerPage();
        });
        QElapsedTimer clock;
        m_dialog->meter("started again", [&] {
            QVERIFY(m_server->start());
            clock.start();
            // The chosen speaker is current again.
            QTRY_COMPARE_WITH_TIMEOUT(chosen(), id("speaker_b"), LongMs);
        });
        qInfo("| back on the page after | %lld ms |", clock.elapsed());
        QVERIFY(clock.elapsed() < 2500); // the longest delay between two attempts, and 0.5 s
        QVERIFY(isSpeakerThere());
        SoundRecording again(id("speaker_b.monitor"));
        QVERIFY(again.waitForStart());
        play(again);
    }));
    QVERIFY2(m_dialog->worstGapMs() < MaxStartGapMs,
             qPrintable(QString::number(m_dialog->worstGapMs())));
}

void tst_SpeakerDialog::saysWhatTheServerDoes()
{
    m_server->kill();
    const auto figures = [this] {
        return m_dialog->results().value(id("measurements")).toObject().value(id("speaker"));
    };
    QVERIFY(m_dialog->run([&] {
        openSpeakerPage();
        QTRY_COMPARE(box()->currentText(), qtTrId("ID_Engine_SoundServerLost"));
        QCOMPARE(box()->count(), 1);
        QCOMPARE(figures()[id("state")], QJsonValue(id("serverLost")));
        keepFrame("server-lost");

        QVERIFY(m_server->start());
        QTRY_COMPARE_WITH_TIMEOUT(chosen(), id("speaker_a"), LongMs);
        m_server->freeze();
        QTRY_COMPARE_WITH_TIMEOUT(box()->currentText(), qtTrId("ID_Engine_SoundServerSilent"),
                                  LongMs);
        QVERIFY(!isSpeakerThere());
        QCOMPARE(figures()[id("state")], QJsonValue(id("serverSilent")));
        m_dialog->click("Btn_CantListen"); // leaves the page
        QCOMPARE(m_dialog->results().value(id("results"))[id("speaker")][id("device")].toString(),
                 qtTrId("ID_Engine_SoundServerSilent"));
        openSpeakerPage();
        m_server->thaw();
        QTRY_COMPARE_WITH_TIMEOUT(chosen(), id("speaker_a"), LongMs);
        QVERIFY(isSpeakerThere());

        for (const QByteArray& module : {m_server->speakerA(), m_server->speakerB()}) {
            m_server->unplug(module);
        }
        m_server->control({id("unload-module"), id("module-null-sink")});
        QTRY_COMPARE(box()->currentText(), qtTrId("ID_Engine_NoSpeaker"));
    }));
}

void tst_SpeakerDialog::followsDevicesDuringASound()
{
    QVERIFY(m_dialog->run([&] {
        openSpeakerPage();
        QTRY_COMPARE(chosen(), id("speaker_a"));
        SoundRecording first(id("speaker_a.monitor"));
        SoundRecording second(id("speaker_b.monitor"));
        QVERIFY(first.waitForStart());
        QVERIFY(second.waitForStart());
        play(first);
        // No speaker was chosen, so the sound follows the default.
        m_dialog->meter("default changed during a sound", [&] {
            m_server->control({id("set-default-sink"), id("speaker_b")});
            QTRY_COMPARE(chosen(), id("speaker_b"));
            QTRY_VERIFY(second.peak() > Audible);
        });
        QTRY_VERIFY_WITH_TIMEOUT(!isPlaying(), LongMs);

        choose(id("voice"));
        choose(id("speaker_b"));
        QTRY_VERIFY(isSpeakerThere());
        second.forget();
        first.forget();
        play(second);
        m_dialog->meter("chosen device unplugged during a sound", [&] {
            m_server->unplug(m_server->speakerB());
            QTRY_VERIFY(!isPlaying());
            QTRY_VERIFY(!isSpeakerThere());
        });
        QVERIFY(first.peak() < Audible); // it did not continue on another one
        m_dialog->meter("plugged in again", [&] {
            m_server->plugSpeaker(id("speaker_b"), QStringLiteral("Test Speaker B"));
            QTRY_COMPARE(chosen(), id("speaker_b"));
        });
        QVERIFY(isSpeakerThere());
        m_dialog->meter("last device unplugged", [&] {
            m_server->control({id("unload-module"), id("module-null-sink")});
            QTRY_VERIFY(!isSpeakerThere());
        });
    }));
    QVERIFY2(m_dialog->worstGapMs() < MaxDialogGapMs,
             qPrintable(QString::number(m_dialog->worstGapMs())));
}

void tst_SpeakerDialog::survivesManyPluggings()
{
    QVERIFY(m_dialog->run([&] {
        openSpeakerPage();
        QTRY_COMPARE(chosen(), id("speaker_a"));
        const int count = box()->count();
        SoundRecording recording(id("speaker_a.monitor"));
        QVERIFY(recording.waitForStart());
        play(recording);
        QElapsedTimer clock;
        clock.start();
        m_dialog->meter("many pluggings during a sound", [&] {
            const PlugStorm storm(*m_server, PlugEvents / 2);
            QTRY_VERIFY_WITH_TIMEOUT(storm.isOver(), 60000);
            QCOMPARE(storm.events(), PlugEvents);
        });
        qInfo("| plugs and unplugs | %d in %lld ms |", PlugEvents, clock.elapsed());
        QTRY_COMPARE(box()->count(), count);
        QCOMPARE(chosen(), id("speaker_a"));
        QTRY_VERIFY_WITH_TIMEOUT(!isPlaying(), LongMs);
        m_server->plugSpeaker(id("last"), id("Last"));
        QTRY_COMPARE(box()->count(), count + 1);
    }));
    QVERIFY2(m_dialog->worstGapMs() < MaxDialogGapMs,
             qPrintable(QString::number(m_dialog->worstGapMs())));
}

bool tst_SpeakerDialog::isSpeakerThere() const
{
    auto* const page = m_dialog->child<QWidget>("headsetPage");
    return page->findChild<QWidget*>(id("page_play"))->isVisible();
}

QSlider* tst_SpeakerDialog::slider() const
{
    return m_dialog->child<QWidget>("headsetPage")->findChild<QSlider*>();
}

void tst_SpeakerDialog::play(SoundRecording& recording) const
{
    m_dialog->click("tb_play_test_sound");
    QTRY_VERIFY(recording.peak() > Audible);
    QVERIFY(isPlaying());
}

void tst_SpeakerDialog::choose(const QString& speakerId) const
{
    const QString name = box()->itemText(box()->findData(speakerId));
    chooseInPopup(*box(), name);
    // The engine takes it from its event loop; until then a volume is that of the former one.
    const auto current = [this] {
        return m_dialog->results()
            .value(id("measurements"))[id("speaker")][id("device")]
            .toString();
    };
    QTRY_COMPARE(current(), name);
}

QRadioButton* tst_SpeakerDialog::answerFor(const QString& soundFile) const
{
    const QByteArray text = "ID_HeadsetPage_" + soundFile.section('.', 0, 0).toLatin1();
    for (const char* name : {"item0", "item1", "item2", "item3"}) {
        auto* const button = m_dialog->child<QRadioButton>(name);
        if (button->text() == qtTrId(text.constData())) {
            return button;
        }
    }
    return nullptr;
}

void tst_SpeakerDialog::keepFrame(const char* state) const
{
    QVERIFY(
        m_dialog->keepFrame(QStringLiteral("speaker-%1-%2").arg(QLatin1String(state), language())));
}

QByteArray tst_SpeakerDialog::volumeOf(const char* speakerId)
{
    return m_server->control({id("get-sink-volume"), id(speakerId)});
}

// Destroyed in mid-sound without having been hidden: the page doesn't end the sound.
void tst_SpeakerDialog::pageLeavesNoSoundBehind()
{
    auto page = std::make_unique<HeadsetPage>();
    page->show();
    const auto* const combo = page->findChild<QComboBox*>("cb_ad_output_name");
    QTRY_COMPARE_WITH_TIMEOUT(combo->currentData().toString(), id("speaker_a"), LongMs);
    QTest::mouseClick(page->findChild<QPushButton*>("tb_play_test_sound"), Qt::LeftButton);
    QTRY_VERIFY(!sounds().isEmpty());
    page.reset();
    QTRY_COMPARE(sounds(), QByteArray());
}

void tst_SpeakerDialog::speakerLeavesNoPlayerBehind()
{
    auto speaker = std::make_unique<LumSpeaker>();
    QTRY_COMPARE_WITH_TIMEOUT(speaker->getCurrentDevice(), id("speaker_a"), LongMs);
    const QPointer<AudioPlayer> player = CreateAudioPlayer(
        AudioPlayerType(3), soundPath(id("Saxophone.mp3")), 1.0F, nullptr, 0, false, false);
    QTRY_VERIFY(!sounds().isEmpty());
    speaker.reset();
    QVERIFY(!player);
    QTRY_COMPARE(sounds(), QByteArray());
}

QTEST_MAIN(tst_SpeakerDialog)
#include "tst_SpeakerDialog.moc"
