// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/HeadsetPageTest.h"
#include "tests/support/DevicePageTools.h"

#include <CommEngine/HardwareMgrInterface.h>

#include <QSlider>

using DevicePageTools::entries;
using Platform::DeviceState;
using TestSupport::HeadsetPageTest;

// The list of speakers, the choice, and the volume.
class tst_HeadsetPageDevices : public HeadsetPageTest
{
    Q_OBJECT

private Q_SLOTS:
    void stateOnScreen_data();
    void stateOnScreen();
    void speakerThatComesReplacesTheEntryForNone();
    void unlistedSpeakerAddsAnEntryForNone();
    void refillNeverChooses();
    void refillClosesThePopup();
    void userChoosesOnce();
    void wheelAndArrowsChooseNothing();
    void choiceFollowsTheEngine();
    void deviceChangeCallsInOrder();
    void hostileNamesStayLiteral();

    void volumeOfTheUser();
    void volumeFromOutside();
    void mutedSpeakerIsAtZero();
    void volumeFollowsTheWorkState();
    void volumeFollowsTheSpeaker();
};

void tst_HeadsetPageDevices::stateOnScreen_data()
{
    QTest::addColumn<Speaker>("speaker");
    QTest::addColumn<QString>("page");
    QTest::addColumn<bool>("canHear");
    QTest::addColumn<QStringList>("expectedEntries");
    QTest::addColumn<QString>("shown");
    const QString none = '=' + HardwareMgrInterface::NoneDevice;
    QTest::newRow("none") << Speaker::None << "noHeadsetPage" << false
                          << QStringList{NoSpeakerText + none} << NoSpeakerText;
    QTest::newRow("off") << Speaker::Off << "noHeadsetPage" << false
                         << QStringList{SpeakerName + "=a", NoneChosenText + none}
                         << NoneChosenText;
    QTest::newRow("vanished") << Speaker::Vanished << "noHeadsetPage" << false
                              << QStringList{SpeakerName + "=a", NoneChosenText + none}
                              << QString();
    QTest::newRow("works") << Speaker::Works << "page_play" << true
                           << QStringList{SpeakerName + "=a"} << SpeakerName;
}

void tst_HeadsetPageDevices::stateOnScreen()
{
    QFETCH(Speaker, speaker);
    QFETCH(bool, canHear);
    makeShownPage(speaker);
    QTEST(m_stack->currentWidget()->objectName(), "page");
    checkVerdictButtons(canHear, !canHear);
    QTEST(entries(*m_combo), "expectedEntries");
    QTEST(m_combo->currentText(), "shown");
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Play"));
    QVERIFY(m_play->isEnabled());
}

void tst_HeadsetPageDevices::speakerThatComesReplacesTheEntryForNone()
{
    makeShownPage(Speaker::Off);
    QCOMPARE(m_combo->count(), 2);
    m_engine->clearCalls();
    m_engine->scriptedSpeakers().choose("a");
    turn();
    QCOMPARE(entries(*m_combo), QStringList{SpeakerName + "=a"});
    QCOMPARE(m_combo->currentText(), SpeakerName);
    QCOMPARE(m_stack->currentWidget()->objectName(), QString("page_play"));
    checkVerdictButtons(true, false);
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_HeadsetPageDevices::unlistedSpeakerAddsAnEntryForNone()
{
    m_engine->scriptedSpeakers().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage();
    m_engine->scriptedSpeakers().unplug("b"); // stays chosen
    turn();
    QCOMPARE(
        entries(*m_combo),
        (QStringList{SpeakerName + "=a", NoneChosenText + '=' + HardwareMgrInterface::NoneDevice}));
    QCOMPARE(m_combo->currentIndex(), -1);
    QCOMPARE(m_stack->currentWidget()->objectName(), QString("noHeadsetPage"));
    checkVerdictButtons(false, true);
}

void tst_HeadsetPageDevices::refillNeverChooses()
{
    makeShownPage();
    m_engine->clearCalls();
    m_engine->scriptedSpeakers().plug({"0", "Another"}, DeviceState::Working);
    turn();
    QCOMPARE(m_combo->count(), 2);
    QCOMPARE(m_combo->currentText(), SpeakerName);
    m_engine->scriptedSpeakers().unplug("0");
    m_engine->scriptedSpeakers().unplug("a");
    turn();
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_HeadsetPageDevices::refillClosesThePopup()
{
    makeShownPage();
    m_combo->showPopup();
    QVERIFY(m_combo->view()->isVisible());
    m_engine->scriptedSpeakers().plug({"b", "Second"});
    turn();
    QVERIFY(!m_combo->view()->isVisible());
}

void tst_HeadsetPageDevices::userChoosesOnce()
{
    m_engine->scriptedSpeakers().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage();
    turn();
    m_engine->clearCalls();
    m_combo->setCurrentIndex(m_combo->findText(SpeakerName));
    QCOMPARE(m_engine->commands(), QStringList{"speaker.setCurrent(a)"});
    turn();
    QCOMPARE(m_engine->commands(), QStringList{"speaker.setCurrent(a)"});
}

void tst_HeadsetPageDevices::wheelAndArrowsChooseNothing()
{
    m_engine->scriptedSpeakers().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage();
    m_engine->clearCalls();
    DevicePageTools::ignoresWheelAndArrows(m_combo);
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_HeadsetPageDevices::choiceFollowsTheEngine()
{
    m_engine->scriptedSpeakers().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage();
    QCOMPARE(m_combo->currentText(), QString("Second"));
    m_engine->scriptedSpeakers().choose("a");
    turn();
    QCOMPARE(m_combo->currentText(), SpeakerName);
}

void tst_HeadsetPageDevices::deviceChangeCallsInOrder()
{
    m_engine->scriptedSpeakers().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage();
    turn();
    m_engine->clearCalls();
    m_engine->scriptedSpeakers().choose("a");
    turn();
    // The first one is the engine's, for its signal's argument.
    QCOMPARE(m_engine->calls(),
             (QStringList{"speaker.state()", "speaker.volume()", "speaker.state()"}));
}

void tst_HeadsetPageDevices::hostileNamesStayLiteral()
{
    const QString name = "<b>Bold</b> & %1 \u202E" + QString(100, 'x');
    m_engine->scriptedSpeakers().plug({"a", name}, DeviceState::Working);
    makeShownPage(Speaker::None);
    QCOMPARE(m_combo->currentText(), name);
    m_page->hide();
    m_page->saveResult();
    QCOMPARE(m_engine->commands().last(), "report.result(speaker.device=" + name + ')');
}

void tst_HeadsetPageDevices::volumeOfTheUser()
{
    makeShownPage();
    m_engine->clearCalls();
    m_page->findChild<QSlider*>()->setValue(77);
    turn();
    QCOMPARE(m_engine->commands(), QStringList{"speaker.setVolume(77)"});
    m_page->findChild<QSlider*>()->setValue(1000);
    QCOMPARE(m_engine->commands().last(), QString("speaker.setVolume(100)"));
}

void tst_HeadsetPageDevices::volumeFromOutside()
{
    makeShownPage();
    m_engine->clearCalls();
    m_engine->scriptedSpeakers().moveVolumeFromOutside(23);
    turn();
    QCOMPARE(m_page->findChild<QSlider*>()->value(), 23);
    QCOMPARE(m_volume->findChild<QLabel*>()->text(), QString("23"));
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_HeadsetPageDevices::mutedSpeakerIsAtZero()
{
    auto& speakers = m_engine->scriptedSpeakers();
    makeShownPage();
    const int before = m_page->findChild<QSlider*>()->value();
    QVERIFY(before > 0);
    m_engine->clearCalls();
    speakers.setMuted(speakers.currentId(), true);
    turn();
    QCOMPARE(m_page->findChild<QSlider*>()->value(), 0);
    QCOMPARE(m_volume->findChild<QLabel*>()->text(), QString("0"));
    speakers.setMuted(speakers.currentId(), false);
    turn();
    QCOMPARE(m_page->findChild<QSlider*>()->value(), before);
    QCOMPARE(m_engine->commands(), QStringList());
    speakers.setMuted(speakers.currentId(), true);
    turn();
    m_page->findChild<QSlider*>()->setValue(12);
    QCOMPARE(m_engine->commands(), QStringList{"speaker.setVolume(12)"});
    QVERIFY(!speakers.isMuted());
}

void tst_HeadsetPageDevices::volumeFollowsTheWorkState()
{
    makeShownPage();
    QVERIFY(m_volume->isEnabled());
    m_engine->scriptedSpeakers().setState("a", DeviceState::Failed);
    turn();
    QVERIFY(!m_volume->isEnabled());
    m_engine->scriptedSpeakers().setState("a", DeviceState::Working);
    turn();
    QVERIFY(m_volume->isEnabled());
}

void tst_HeadsetPageDevices::volumeFollowsTheSpeaker()
{
    m_engine->scriptedSpeakers().plug({"b", "Second"}, DeviceState::Failed);
    m_engine->scriptedSpeakers().setVolume("b", 11);
    m_engine->scriptedSpeakers().setVolume("a", 88);
    makeShownPage();
    QCOMPARE(m_page->findChild<QSlider*>()->value(), 11);
    QVERIFY(!m_volume->isEnabled());
    m_engine->scriptedSpeakers().choose("a");
    turn();
    QCOMPARE(m_page->findChild<QSlider*>()->value(), 88);
    QVERIFY(m_volume->isEnabled());
}

QTEST_MAIN(tst_HeadsetPageDevices)
#include "tst_HeadsetPageDevices.moc"
