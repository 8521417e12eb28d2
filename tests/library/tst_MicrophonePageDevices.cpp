// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/MicrophonePageTest.h"
#include "tests/support/DevicePageTools.h"

#include <CommEngine/HardwareMgrInterface.h>
#include <LumUtility/LumColor.h>

using DevicePageTools::entries;
using Platform::DeviceState;
using TestSupport::MicrophonePageTest;

// The list of microphones, the choice, and the state of the chosen one.
class tst_MicrophonePageDevices : public MicrophonePageTest
{
    Q_OBJECT

private Q_SLOTS:
    void noMicrophoneLeavesOneEntry();
    void microphonesAreOrderedById();
    void refillNeverChooses();
    void refillClosesThePopup();
    void userChoosesOnce();
    void wheelAndArrowsChooseNothing();
    void choiceFollowsTheEngine();
    void unknownMicrophoneLeavesNoSelection();
    void hostileNamesStayLiteral();

    void stateOnScreen_data();
    void stateOnScreen();
    void lostSoundLocksTheAnswers();
    void unusableMicrophoneUnlocksNo();

    void disabledTipPlaceAndLook();
    void disabledTipNeedsAVisiblePage();
    void disabledTipIsMadeOnceAndGoesWithThePage();
    void disabledTipGoesWithTheLastMicrophone();
};

void tst_MicrophonePageDevices::noMicrophoneLeavesOneEntry()
{
    makeShownPage(Mic::None);
    QCOMPARE(entries(*m_combo), QStringList{NoMicText + '=' + HardwareMgrInterface::NoneDevice});
    QCOMPARE(m_combo->currentIndex(), 0);
}

void tst_MicrophonePageDevices::microphonesAreOrderedById()
{
    m_engine->microphones().plug({"b", "Alpha"}, DeviceState::Working);
    m_engine->microphones().plug({"a", "Zulu"}, DeviceState::Working);
    makePage();
    QCOMPARE(entries(*m_combo), (QStringList{"Zulu=a", "Alpha=b",
                                             NoMicText + '=' + HardwareMgrInterface::NoneDevice}));
    QCOMPARE(m_combo->currentText(), QString("Alpha")); // plugged in first, so the current one
}

void tst_MicrophonePageDevices::refillNeverChooses()
{
    makeShownPage(Mic::Works);
    m_engine->clearCalls();
    m_engine->microphones().plug({"0", "Earlier in the order"}, DeviceState::Working);
    turn();
    QCOMPARE(m_combo->count(), 3);
    QCOMPARE(m_combo->currentText(), MicName);
    m_engine->microphones().unplug("a");
    turn();
    QCOMPARE(m_combo->count(), 2);
    QCOMPARE(m_combo->currentIndex(), -1);
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_MicrophonePageDevices::refillClosesThePopup()
{
    makeShownPage(Mic::Works);
    m_combo->showPopup();
    QVERIFY(m_combo->view()->isVisible());
    m_engine->microphones().plug({"b", "Second"});
    turn();
    QVERIFY(!m_combo->view()->isVisible());
}

void tst_MicrophonePageDevices::userChoosesOnce()
{
    m_engine->microphones().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage(Mic::Works);
    turn();
    m_engine->clearCalls();
    m_combo->setCurrentIndex(m_combo->findText(MicName));
    QCOMPARE(m_engine->commands(), QStringList{"microphone.setCurrent(a)"});
    turn();
    m_engine->clearCalls();
    m_combo->setCurrentIndex(m_combo->findText(NoMicText));
    QCOMPARE(m_engine->commands(), QStringList{"microphone.setCurrent()"});
    turn();
    QCOMPARE(m_stack->currentWidget()->objectName(), QString("noMicPage"));
}

void tst_MicrophonePageDevices::wheelAndArrowsChooseNothing()
{
    m_engine->microphones().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage(Mic::Works);
    m_engine->clearCalls();
    DevicePageTools::ignoresWheelAndArrows(m_combo);
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_MicrophonePageDevices::choiceFollowsTheEngine()
{
    m_engine->microphones().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage(Mic::Works);
    QCOMPARE(m_combo->currentText(), QString("Second"));
    m_engine->clearCalls();
    m_engine->microphones().choose("a");
    turn();
    QCOMPARE(m_combo->currentText(), MicName);
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_MicrophonePageDevices::unknownMicrophoneLeavesNoSelection()
{
    m_engine->microphones().plug({"b", "Second"}, DeviceState::Working);
    m_engine->microphones().choose("vanished");
    makePage();
    QCOMPARE(m_combo->currentIndex(), -1);
    QCOMPARE(m_stack->currentWidget()->objectName(), QString("noMicPage"));
}

void tst_MicrophonePageDevices::hostileNamesStayLiteral()
{
    const QString name = "<b>Bold</b> & %1 \u202E" + QString(100, 'x');
    m_engine->microphones().plug({"a", name}, DeviceState::Working);
    makeShownPage(Mic::None);
    QCOMPARE(m_combo->currentText(), name);
    m_page->hide();
    m_page->saveResult();
    QCOMPARE(m_engine->commands().last(), "report.result(microphone.device=" + name + ')');
}

void tst_MicrophonePageDevices::stateOnScreen_data()
{
    QTest::addColumn<Mic>("mic");
    QTest::addColumn<QString>("page");
    QTest::addColumn<bool>("isYesShown");
    QTest::addColumn<bool>("isYesEnabled");
    QTest::addColumn<bool>("isNoEnabled");
    QTest::addColumn<bool>("isTipShown");
    QTest::newRow("none") << Mic::None << "noMicPage" << false << true << true << false;
    QTest::newRow("off") << Mic::Off << "noMicPage" << false << true << true << true;
    QTest::newRow("denied") << Mic::Denied << "noMicPage" << false << true << true << true;
    QTest::newRow("silent") << Mic::Silent << "micPage" << true << false << false << false;
    QTest::newRow("works") << Mic::Works << "micPage" << true << true << true << false;
}

void tst_MicrophonePageDevices::stateOnScreen()
{
    QFETCH(Mic, mic);
    makeShownPage(mic);
    QTEST(m_stack->currentWidget()->objectName(), "page");
    QTEST(m_yes->isVisible(), "isYesShown");
    QTEST(m_yes->isEnabled(), "isYesEnabled");
    QTEST(m_no->isEnabled(), "isNoEnabled");
    QTEST(isDisabledBalloonVisible(), "isTipShown");
    QVERIFY(m_record->isEnabled());
}

void tst_MicrophonePageDevices::lostSoundLocksTheAnswers()
{
    makeShownPage(Mic::Works);
    m_engine->microphones().setState("a", DeviceState::Ready);
    turn();
    QVERIFY(m_yes->isVisible());
    QVERIFY(!m_yes->isEnabled());
    QVERIFY(!m_no->isEnabled());
    m_engine->microphones().setState("a", DeviceState::Working); // sound alone unlocks nothing
    turn();
    QVERIFY(!m_yes->isEnabled());
    QVERIFY(!m_no->isEnabled());
}

void tst_MicrophonePageDevices::unusableMicrophoneUnlocksNo()
{
    makeShownPage(Mic::Silent);
    QVERIFY(!m_no->isEnabled());
    m_engine->microphones().setState("a", DeviceState::Denied);
    turn();
    QVERIFY(!m_yes->isVisible());
    QVERIFY(m_no->isEnabled());
    QVERIFY(isDisabledBalloonVisible());
}

void tst_MicrophonePageDevices::disabledTipPlaceAndLook()
{
    makeShownPage(Mic::Works);
    QVERIFY(QTest::qWaitForWindowExposed(m_page.get())); // which puts it in its place
    m_engine->microphones().setState("a", DeviceState::Denied);
    turn();
    LumToolTip* tip = disabledBalloon();
    QVERIFY(tip->isVisible());
    QVERIFY(tip->isWindow());
    QVERIFY(!tip->parentWidget());
    QVERIFY(!tip->findChild<QLabel*>()->wordWrap());
    QVERIFY(!isArrowInTheMiddle(*tip));
    const QPoint corner = m_combo->mapToGlobal(QPoint(0, 0));
    QCOMPARE(tip->geometry(),
             QRect(QPoint(corner.x(), corner.y() - tip->height()), tip->sizeHint()));
    const QImage picture = tip->grab().toImage();
    QVERIFY(picture.pixelColor(20, 2).red() > 200 && picture.pixelColor(20, 2).green() < 120);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(tip, &leave);
    QVERIFY(tip->isVisible());
}

void tst_MicrophonePageDevices::disabledTipNeedsAVisiblePage()
{
    plug(Mic::Denied);
    makePage();
    QVERIFY(!disabledBalloon());
    m_engine->microphones().setState("a", DeviceState::Failed);
    turn();
    QVERIFY(!disabledBalloon());
}

void tst_MicrophonePageDevices::disabledTipIsMadeOnceAndGoesWithThePage()
{
    makeShownPage(Mic::Denied);
    LumToolTip* first = disabledBalloon();
    m_page->hide();
    QVERIFY(!first->isVisible());
    m_page->show();
    QCOMPARE(disabledBalloon(), first);
    QVERIFY(first->isVisible());
}

void tst_MicrophonePageDevices::disabledTipGoesWithTheLastMicrophone()
{
    makeShownPage(Mic::Denied);
    m_engine->microphones().unplug("a");
    turn();
    QVERIFY(!isDisabledBalloonVisible());
}

QTEST_MAIN(tst_MicrophonePageDevices)
#include "tst_MicrophonePageDevices.moc"
