// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/MicrophonePage.h"

#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/DevicePageTools.h"
#include "tests/support/Dictionary.h"
#include "tests/support/PageTools.h"
#include "tests/support/TimerTools.h"
#include "widgets/TipsWidget.h"
#include "widgets/Volume.h"

#include <CommEngine/HardwareMgrInterface.h>
#include <LumUtility/LumColor.h>

#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QStackedLayout>
#include <QStackedWidget>
#include <QtTest>

#include <limits>

using DevicePageTools::entries;
using Platform::DeviceState;

namespace {

enum class Mic { None, Off, Denied, Silent, Works };
enum class Answer { None, No, Yes };

const QString MicName = "Some Microphone";
const QString NoMicText = "ID_Engine_NoMicrophone";
constexpr int CountdownIntervalMs = 1000;
constexpr int HandIntervalMs = 300;
constexpr int TicksOfACountdown = 6;

const QVector<QPair<Mic, const char*>> AllMics{{Mic::None, "none"},
                                               {Mic::Off, "turned off"},
                                               {Mic::Denied, "denied"},
                                               {Mic::Silent, "silent"},
                                               {Mic::Works, "works"}};
const QVector<QPair<Answer, const char*>> AllAnswers{
    {Answer::None, "unanswered"}, {Answer::No, "no"}, {Answer::Yes, "yes"}};

void addMicsAndAnswers()
{
    QTest::addColumn<Mic>("mic");
    QTest::addColumn<Answer>("answer");
    for (const auto& [mic, micName] : AllMics) {
        for (const auto& [answer, answerName] : AllAnswers) {
            QTest::addRow("%s, %s", micName, answerName) << mic << answer;
        }
    }
}

} // namespace

Q_DECLARE_METATYPE(Mic)
Q_DECLARE_METATYPE(Answer)

class tst_MicrophonePage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void constructionCallsInOrder_data();
    void constructionCallsInOrder();
    void texts();
    void captionFromTheRightLeavesRoomForTheFocus();
    void tipsStandBeforeTheLastItem();
    void comboBoxSetup();
    void wheelAndArrowsChooseNothing();
    void levelBars();

    void noMicrophoneLeavesOneEntry();
    void microphonesAreOrderedById();
    void refillNeverChooses();
    void refillClosesThePopup();
    void userChoosesOnce();
    void choiceFollowsTheEngine();
    void unknownMicrophoneLeavesNoSelection();
    void hostileNamesStayLiteral();

    void stateOnScreen_data();
    void stateOnScreen();
    void lostSoundLocksTheAnswers();
    void unusableMicrophoneUnlocksNo();
    void showCallsInOrder_data();
    void showCallsInOrder();
    void hideCallsInOrder_data();
    void hideCallsInOrder();

    void level_data();
    void level();
    void userVolume();
    void volumeFollowsTheMicrophone();
    void mutedMicrophoneIsAtZero();
    void systemVolumeMovesTheSliderAndNothingElse_data();
    void systemVolumeMovesTheSliderAndNothingElse();
    void noisyTip_data();
    void noisyTip();
    void noisyTipPlaceAndLook();
    void noisyTipNeedsTheSlider();
    void noisyTipOfASliderThatAppears();

    void disabledTipPlaceAndLook();
    void disabledTipNeedsAVisiblePage();
    void disabledTipIsMadeOnceAndGoesWithThePage();
    void disabledTipGoesWithTheLastMicrophone();

    void countdown();
    void countdownStartsOver();
    void doubleClickStartsOneCountdown();
    void foreignTicksChangeNothing();
    void hidingEndsTheCountdown();
    void hidingWithoutCountdownKeepsTheAnswers();

    void handPulses();
    void handIsTheProcesss();
    void handPlace();

    void answersComplete();
    void isPassedNeedsEverything_data();
    void isPassedNeedsEverything();
    void problemLines_data();
    void problemLines();
    void resultsAreRecordedInOrder_data();
    void resultsAreRecordedInOrder();
    void resultsBeforeTheFirstHide();

    void destructionInTheMiddle();
    void formSizes_data();
    void formSizes();
    void formStyleSheets_data();
    void formStyleSheets();
    void formDetails();
    void metaObjectHasTheTwoSlots();

private:
    void plug(Mic mic);
    void makePage();
    void makeShownPage(Mic mic);
    void turn();
    void answer(Answer answer);
    void runCountdown(int ticks);
    int countdownTimer() { return coarseTimers(m_page.get(), CountdownIntervalMs).value(0); }
    int sliderValue() { return m_page->findChild<QSlider*>()->value(); }
    QString volumeText();
    LumToolTip* noisyBalloon() { return m_page->findChild<LumToolTip*>(); }
    LumToolTip* disabledBalloon();
    bool isDisabledBalloonVisible();

    Platform::ScriptedEngine* m_engine = nullptr;
    std::unique_ptr<MicrophonePage> m_page;
    QCustomComboBox* m_combo = nullptr;
    QPushButton* m_yes = nullptr;
    QPushButton* m_no = nullptr;
    QPushButton* m_record = nullptr;
    QLabel* m_recordLabel = nullptr;
    QStackedWidget* m_stack = nullptr;
    Volume* m_volume = nullptr;
};

void tst_MicrophonePage::init()
{
    m_engine = &Platform::ScriptedEngine::install();
}

void tst_MicrophonePage::cleanup()
{
    m_page.reset();
    QCOMPARE(m_engine->livingSessions(), 0);
    QVERIFY(balloons().isEmpty());
    Platform::EngineRegistry::uninstall();
}

void tst_MicrophonePage::plug(Mic mic)
{
    auto& microphones = m_engine->microphones();
    switch (mic) {
    case Mic::None:
        break;
    case Mic::Off:
        microphones.plug({"a", MicName}, DeviceState::Working);
        microphones.choose(QString());
        break;
    case Mic::Denied:
        microphones.plug({"a", MicName}, DeviceState::Denied);
        break;
    case Mic::Silent:
        microphones.plug({"a", MicName}, DeviceState::Ready);
        break;
    case Mic::Works:
        microphones.plug({"a", MicName}, DeviceState::Working);
        break;
    }
}

void tst_MicrophonePage::makePage()
{
    m_page = std::make_unique<MicrophonePage>();
    m_combo = childOf<QCustomComboBox>(*m_page, "cb_ad_input_name");
    m_yes = childOf<QPushButton>(*m_page, "Btn_Mic_Yes");
    m_no = childOf<QPushButton>(*m_page, "Btn_Mic_No");
    m_record = childOf<QPushButton>(*m_page, "Btn_Record");
    m_recordLabel = childOf<QLabel>(*m_page, "label_Record");
    m_stack = childOf<QStackedWidget>(*m_page, "stackedWidget");
    m_volume = m_page->findChild<Volume*>();
}

void tst_MicrophonePage::makeShownPage(Mic mic)
{
    plug(mic);
    makePage();
    m_page->move(100, 100);
    m_page->show();
}

// The scripted engine tells its news from the event loop.
void tst_MicrophonePage::turn()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
}

void tst_MicrophonePage::answer(Answer answer)
{
    if (answer != Answer::None) {
        m_page->finishCheck(answer == Answer::Yes);
    }
}

void tst_MicrophonePage::runCountdown(int ticks)
{
    const int timer = countdownTimer();
    for (int i = 0; i < ticks; ++i) {
        tick(m_page.get(), timer);
    }
}

QString tst_MicrophonePage::volumeText()
{
    return m_volume->findChild<QLabel*>()->text();
}

LumToolTip* tst_MicrophonePage::disabledBalloon()
{
    return balloonWith("ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable");
}

bool tst_MicrophonePage::isDisabledBalloonVisible()
{
    return disabledBalloon() && disabledBalloon()->isVisible();
}

void tst_MicrophonePage::constructionCallsInOrder_data()
{
    QTest::addColumn<Mic>("mic");
    for (const auto& [mic, name] : AllMics) {
        QTest::newRow(name) << mic;
    }
}

void tst_MicrophonePage::constructionCallsInOrder()
{
    QFETCH(Mic, mic);
    plug(mic);
    makePage();
    QStringList expected{"microphone.create()", "microphone.devices()", "microphone.currentId()",
                         "microphone.state()"};
    if (mic == Mic::Silent || mic == Mic::Works) {
        expected.append("microphone.hasHeardSound()");
    }
    expected += {"microphone.state()", "microphone.isVolumeAdjustable()", "microphone.volume()"};
    QCOMPARE(m_engine->calls(), expected);
}

void tst_MicrophonePage::texts()
{
    const Dictionary dictionary({{"ID_MicrophonePage_MicrophoneTest", "Press %1 and speak"}});
    makePage();
    QCOMPARE(childOf<QLabel>(*m_page, "label_2")->text(), QString("Press %1 and speak"));
    QCOMPARE(childOf<QLabel>(*m_page, "label")->text(), QString("ID_Volume"));
    QCOMPARE(childOf<QLabel>(*m_page, "label_select_mic")->text(), QString("ID_Microphone"));
    QCOMPARE(m_yes->text(), QString("ID_MicrophonePage_CanHearOrSee"));
    QCOMPARE(m_no->text(), QString("ID_MicrophonePage_CanNotHearOrSee"));
    QCOMPARE(m_recordLabel->text(), QString("ID_Record"));
    QCOMPARE(m_record->text(), QString("Record"));
}

void tst_MicrophonePage::captionFromTheRightLeavesRoomForTheFocus()
{
    const int focusPixels = 4; // around a control
    const auto roomFor = [](const char* caption) {
        const Dictionary dictionary({{"ID_Microphone", QString::fromUtf8(caption)}});
        const MicrophonePage page;
        const auto* label = page.findChild<QLabel*>("label_select_mic");
        const auto* box = page.findChild<QWidget*>("cb_ad_input_name");
        return box->x() - label->x() - label->contentsRect().right() - 1;
    };
    QVERIFY(roomFor("\u0627\u0644\u0645\u0627\u064a\u0643:") >= focusPixels);
    QVERIFY(roomFor("Mic:") < focusPixels); // its letters begin at the other side
}

void tst_MicrophonePage::tipsStandBeforeTheLastItem()
{
    makePage();
    const auto* layout = m_page->findChild<QVBoxLayout*>("verticalLayout");
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 2);
    auto* tips = qobject_cast<TipsWidget*>(layout->itemAt(0)->layout());
    QVERIFY(tips);
    QCOMPARE(qobject_cast<QPushButton*>(tips->itemAt(0)->widget())->text(),
             QString(" ID_MicrophonePage_ClickHere"));
    QVERIFY(balloonWith("ID_CameraPage_1\nID_MicrophonePage_2\nID_MicrophonePage_3\n"
                        "ID_MicrophonePage_4\nID_CameraPage_5"));
}

void tst_MicrophonePage::comboBoxSetup()
{
    makeShownPage(Mic::Works);
    DevicePageTools::isSetUp(m_combo, m_page.get());
    DevicePageTools::hasALongPopup(m_combo);
}

void tst_MicrophonePage::wheelAndArrowsChooseNothing()
{
    m_engine->microphones().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage(Mic::Works);
    m_engine->clearCalls();
    DevicePageTools::ignoresWheelAndArrows(m_combo);
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_MicrophonePage::levelBars()
{
    makePage();
    auto* bars = qobject_cast<QStackedLayout*>(childOf<QWidget>(*m_page, "w_intensity")->layout());
    QVERIFY(bars);
    QCOMPARE(bars->stackingMode(), QStackedLayout::StackAll);
    QCOMPARE(bars->count(), 2);
    const auto* back = qobject_cast<QProgressBar*>(bars->widget(0));
    const auto* front = qobject_cast<QProgressBar*>(bars->widget(1));
    QVERIFY(back && front);
    QCOMPARE(bars->currentIndex(), 1);
    QCOMPARE(back->value(), 100);
    QVERIFY(!back->isTextVisible() && !front->isTextVisible());
    QCOMPARE(back->styleSheet(),
             QString("QProgressBar {border: 0px;}QProgressBar::chunk{width: 4px;margin-right: "
                     "6px;background-image: url(:/Kestrel/Images/chunk_back.png);}"));
    QCOMPARE(front->styleSheet(),
             QString("QProgressBar {border: 0px; background-color: transparent;}"
                     "QProgressBar::chunk{width: 4px;margin-right: 6px;background-image: "
                     "url(:/Kestrel/Images/chunk_front.png);}"));
}

void tst_MicrophonePage::noMicrophoneLeavesOneEntry()
{
    makeShownPage(Mic::None);
    QCOMPARE(entries(*m_combo), QStringList{NoMicText + '=' + HardwareMgrInterface::NoneDevice});
    QCOMPARE(m_combo->currentIndex(), 0);
}

void tst_MicrophonePage::microphonesAreOrderedById()
{
    m_engine->microphones().plug({"b", "Alpha"}, DeviceState::Working);
    m_engine->microphones().plug({"a", "Zulu"}, DeviceState::Working);
    makePage();
    QCOMPARE(entries(*m_combo), (QStringList{"Zulu=a", "Alpha=b",
                                             NoMicText + '=' + HardwareMgrInterface::NoneDevice}));
    QCOMPARE(m_combo->currentText(), QString("Alpha")); // plugged in first, so the current one
}

void tst_MicrophonePage::refillNeverChooses()
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

void tst_MicrophonePage::refillClosesThePopup()
{
    makeShownPage(Mic::Works);
    m_combo->showPopup();
    QVERIFY(m_combo->view()->isVisible());
    m_engine->microphones().plug({"b", "Second"});
    turn();
    QVERIFY(!m_combo->view()->isVisible());
}

void tst_MicrophonePage::userChoosesOnce()
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

void tst_MicrophonePage::choiceFollowsTheEngine()
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

void tst_MicrophonePage::unknownMicrophoneLeavesNoSelection()
{
    m_engine->microphones().plug({"b", "Second"}, DeviceState::Working);
    m_engine->microphones().choose("vanished");
    makePage();
    QCOMPARE(m_combo->currentIndex(), -1);
    QCOMPARE(m_stack->currentWidget()->objectName(), QString("noMicPage"));
}

void tst_MicrophonePage::hostileNamesStayLiteral()
{
    const QString name = "<b>Bold</b> & %1 \u202E" + QString(100, 'x');
    m_engine->microphones().plug({"a", name}, DeviceState::Working);
    makeShownPage(Mic::None);
    QCOMPARE(m_combo->currentText(), name);
    m_page->hide();
    m_page->saveResult();
    QCOMPARE(m_engine->commands().last(), "report.result(microphone.device=" + name + ')');
}

void tst_MicrophonePage::stateOnScreen_data()
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

void tst_MicrophonePage::stateOnScreen()
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

void tst_MicrophonePage::lostSoundLocksTheAnswers()
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

void tst_MicrophonePage::unusableMicrophoneUnlocksNo()
{
    makeShownPage(Mic::Silent);
    QVERIFY(!m_no->isEnabled());
    m_engine->microphones().setState("a", DeviceState::Denied);
    turn();
    QVERIFY(!m_yes->isVisible());
    QVERIFY(m_no->isEnabled());
    QVERIFY(isDisabledBalloonVisible());
}

void tst_MicrophonePage::showCallsInOrder_data()
{
    constructionCallsInOrder_data();
}

void tst_MicrophonePage::showCallsInOrder()
{
    QFETCH(Mic, mic);
    plug(mic);
    makePage();
    m_engine->clearCalls();
    m_page->show();
    QStringList expected{"microphone.open()", "microphone.setListening(true)",
                         "microphone.state()"};
    const bool isUsable = mic == Mic::Silent || mic == Mic::Works;
    if (!isUsable) {
        expected.append("microphone.devices()");
    }
    expected += {"microphone.isVolumeAdjustable()", "microphone.volume()", "microphone.state()",
                 isUsable ? "microphone.hasHeardSound()" : "microphone.devices()"};
    QCOMPARE(m_engine->calls(), expected);
}

void tst_MicrophonePage::hideCallsInOrder_data()
{
    constructionCallsInOrder_data();
}

void tst_MicrophonePage::hideCallsInOrder()
{
    QFETCH(Mic, mic);
    makeShownPage(mic);
    m_engine->clearCalls();
    m_page->hide();
    QStringList expected{"microphone.devices()"};
    if (mic != Mic::None) {
        expected.append("microphone.state()");
    }
    if (mic == Mic::Silent || mic == Mic::Works) {
        expected += {"microphone.currentName()", "microphone.hasHeardSound()"};
    }
    expected += {"microphone.setListening(false)", "microphone.close()"};
    QCOMPARE(m_engine->calls(), expected);
    QVERIFY(!isDisabledBalloonVisible());
}

void tst_MicrophonePage::level_data()
{
    QTest::addColumn<double>("level");
    QTest::addColumn<int>("shown");
    QTest::newRow("silence") << 0.0 << 0;
    QTest::newRow("half") << 0.5 << 50;
    QTest::newRow("truncated") << 0.999 << 99;
    QTest::newRow("narrowed to float first") << 0.57 << 57; // as a double it would be 56
    QTest::newRow("full") << 1.0 << 100;
    QTest::newRow("tiny") << 0.0099 << 0;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 100;
    QTest::newRow("minus infinite") << -std::numeric_limits<double>::infinity() << 0;
    QTest::newRow("negative") << -0.5 << 0;
    QTest::newRow("huge") << 1e300 << 100;
}

void tst_MicrophonePage::level()
{
    QFETCH(double, level);
    makeShownPage(Mic::Works);
    auto* bars = childOf<QWidget>(*m_page, "w_intensity")->layout();
    const auto* front = qobject_cast<QProgressBar*>(bars->itemAt(1)->widget());
    m_engine->microphones().emitLevel(0.33);
    turn();
    QCOMPARE(front->value(), 33);
    m_engine->microphones().emitLevel(level);
    turn();
    QTEST(front->value(), "shown");
}

void tst_MicrophonePage::userVolume()
{
    makeShownPage(Mic::Works);
    m_engine->clearCalls();
    m_page->findChild<QSlider*>()->setValue(77);
    QCOMPARE(m_engine->commands(), QStringList{"microphone.setVolume(77)"});
    QCOMPARE(volumeText(), QString("77"));
    turn();
    QCOMPARE(m_engine->commands(), QStringList{"microphone.setVolume(77)"}); // it doesn't echo
    m_page->findChild<QSlider*>()->setValue(1000);
    QCOMPARE(m_engine->commands().last(), QString("microphone.setVolume(150)"));
}

void tst_MicrophonePage::volumeFollowsTheMicrophone()
{
    m_engine->microphones().setVolume("a", 42);
    makeShownPage(Mic::Works);
    QCOMPARE(sliderValue(), 42);
    m_engine->clearCalls();
    m_engine->microphones().setVolume("a", 120);
    turn();
    QCOMPARE(sliderValue(), 120);
    QCOMPARE(volumeText(), QString("120"));
    QCOMPARE(m_engine->calls(),
             (QStringList{"microphone.isVolumeAdjustable()", "microphone.volume()"}));
    QVERIFY(noisyBalloon()->isVisible());
}

void tst_MicrophonePage::mutedMicrophoneIsAtZero()
{
    m_engine->microphones().setVolume("a", 120);
    makeShownPage(Mic::Works);
    QVERIFY(noisyBalloon()->isVisible());
    m_engine->clearCalls();
    m_engine->microphones().setMuted("a", true);
    turn();
    QCOMPARE(sliderValue(), 0);
    QVERIFY(!noisyBalloon()->isVisible());
    m_engine->microphones().setMuted("a", false);
    turn();
    QCOMPARE(sliderValue(), 120);
    QVERIFY(noisyBalloon()->isVisible());
    QCOMPARE(m_engine->commands(), QStringList());
    m_engine->microphones().setMuted("a", true);
    turn();
    m_page->findChild<QSlider*>()->setValue(12);
    QCOMPARE(m_engine->commands(), QStringList{"microphone.setVolume(12)"});
    QVERIFY(!m_engine->microphones().isMuted());
}

void tst_MicrophonePage::systemVolumeMovesTheSliderAndNothingElse_data()
{
    QTest::addColumn<float>("percent");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<int>("onSlider");
    QTest::addColumn<QString>("shown");
    QTest::newRow("truncated") << 37.9F << "37.9" << 37 << "37";
    QTest::newRow("noisy") << 140.0F << "140" << 140 << "140";
    QTest::newRow("negative") << -5.0F << "0" << 0 << "0";
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << "0" << 0 << "0";
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << "1000" << 150 << "1000";
    QTest::newRow("huge") << 3e38F << "1000" << 150 << "1000";
}

void tst_MicrophonePage::systemVolumeMovesTheSliderAndNothingElse()
{
    QFETCH(float, percent);
    QFETCH(QString, logged);
    makeShownPage(Mic::Works);
    m_engine->clearCalls();
    m_engine->microphones().moveVolumeFromOutside(percent);
    QTest::ignoreMessage(QtInfoMsg, qPrintable("OSVolume_Mic: " + logged));
    turn();
    QTEST(sliderValue(), "onSlider");
    QTEST(volumeText(), "shown");
    QCOMPARE(m_engine->calls(), QStringList());
    QVERIFY(!noisyBalloon()->isVisible());
}

void tst_MicrophonePage::noisyTip_data()
{
    QTest::addColumn<int>("volume");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("99") << 99 << false;
    QTest::newRow("100") << 100 << false;
    QTest::newRow("101") << 101 << true;
    QTest::newRow("150") << 150 << true;
}

void tst_MicrophonePage::noisyTip()
{
    QFETCH(int, volume);
    m_engine->microphones().setVolume("a", 50);
    makeShownPage(Mic::Works);
    m_page->findChild<QSlider*>()->setValue(volume);
    QTEST(noisyBalloon()->isVisible(), "isShown");
    m_page->findChild<QSlider*>()->setValue(10);
    QVERIFY(!noisyBalloon()->isVisible());
    m_engine->microphones().setVolume("a", volume);
    turn();
    QTEST(noisyBalloon()->isVisible(), "isShown");
}

void tst_MicrophonePage::noisyTipPlaceAndLook()
{
    m_engine->microphones().setVolume("a", 150);
    makeShownPage(Mic::Works);
    LumToolTip* tip = noisyBalloon();
    QVERIFY(tip->isVisible());
    QCOMPARE(tip->text(), QString("ID_MicrophonePage_MayNoisy"));
    QCOMPARE(tip->parentWidget(), m_page.get());
    QVERIFY(!tip->isWindow());
    QVERIFY(!tip->findChild<QLabel*>()->wordWrap());
    const QPoint slider = m_volume->mapTo(m_page.get(), QPoint(0, 0));
    QCOMPARE(tip->geometry(),
             QRect(QPoint(slider.x() + 10, slider.y() - tip->height() + 9), tip->sizeHint()));
    QVERIFY(m_page->rect().contains(tip->geometry()));
    QVERIFY(isArrowInTheMiddle(*tip));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(tip, &leave);
    QVERIFY(tip->isVisible());
}

void tst_MicrophonePage::noisyTipNeedsTheSlider()
{
    m_engine->microphones().setVolume("a", 150);
    m_engine->microphones().setAdjustable("a", false);
    makeShownPage(Mic::Works);
    QVERIFY(!m_volume->isVisible());
    QVERIFY(!noisyBalloon()); // not even made
    m_engine->microphones().setAdjustable("a", true);
    turn();
    QVERIFY(m_volume->isVisible());
    QVERIFY(noisyBalloon()->isVisible());
    m_engine->microphones().setAdjustable("a", false);
    turn();
    QVERIFY(!noisyBalloon()->isVisible());
    m_engine->microphones().setAdjustable("a", true);
    turn();
    m_engine->microphones().setState("a", DeviceState::Denied);
    turn();
    QVERIFY(!noisyBalloon()->isVisible());
}

void tst_MicrophonePage::noisyTipOfASliderThatAppears()
{
    m_engine->microphones().setVolume("a", 150);
    m_engine->microphones().setAdjustable("a", false);
    makeShownPage(Mic::Works);
    m_engine->microphones().setAdjustable("a", true);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall); // before the layout's own turn
    const QPoint slider = m_volume->mapTo(m_page.get(), QPoint(0, 0));
    const QPoint tip = noisyBalloon()->pos();
    turn();
    QCOMPARE(m_volume->mapTo(m_page.get(), QPoint(0, 0)), slider);
    QCOMPARE(tip, slider + QPoint(10, 9 - noisyBalloon()->height()));
}

void tst_MicrophonePage::disabledTipPlaceAndLook()
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

void tst_MicrophonePage::disabledTipNeedsAVisiblePage()
{
    plug(Mic::Denied);
    makePage();
    QVERIFY(!disabledBalloon());
    m_engine->microphones().setState("a", DeviceState::Failed);
    turn();
    QVERIFY(!disabledBalloon());
}

void tst_MicrophonePage::disabledTipIsMadeOnceAndGoesWithThePage()
{
    makeShownPage(Mic::Denied);
    LumToolTip* first = disabledBalloon();
    m_page->hide();
    QVERIFY(!first->isVisible());
    m_page->show();
    QCOMPARE(disabledBalloon(), first);
    QVERIFY(first->isVisible());
}

void tst_MicrophonePage::disabledTipGoesWithTheLastMicrophone()
{
    makeShownPage(Mic::Denied);
    m_engine->microphones().unplug("a");
    turn();
    QVERIFY(!isDisabledBalloonVisible());
}

void tst_MicrophonePage::countdown()
{
    const Dictionary dictionary({{"ID_MicrophonePage_OfS", "%1 of 5"}});
    makeShownPage(Mic::Works);
    m_engine->clearCalls();
    QTest::mouseClick(m_record, Qt::LeftButton);
    QVERIFY(!m_record->isEnabled());
    QVERIFY(!m_yes->isEnabled());
    QVERIFY(!m_no->isEnabled());
    QCOMPARE(m_recordLabel->text(), QString("ID_MicrophonePage_Recording"));
    QCOMPARE(coarseTimers(m_page.get(), CountdownIntervalMs).size(), 1);
    const int timer = countdownTimer();
    m_engine->microphones().emitLevel(0.7);
    turn();
    for (int seconds = 5; seconds >= 1; --seconds) {
        tick(m_page.get(), timer);
        QCOMPARE(m_recordLabel->text(), QString("%1 of 5").arg(seconds));
        QVERIFY(!m_record->isEnabled() && !m_yes->isEnabled() && !m_no->isEnabled());
    }
    tick(m_page.get(), timer);
    QCOMPARE(m_recordLabel->text(), QString("ID_MicrophonePage_Again"));
    QVERIFY(m_record->isEnabled() && m_yes->isEnabled() && m_no->isEnabled());
    QVERIFY(coarseTimers(m_page.get(), CountdownIntervalMs).isEmpty());
    auto* bars = childOf<QWidget>(*m_page, "w_intensity")->layout();
    QCOMPARE(qobject_cast<QProgressBar*>(bars->itemAt(1)->widget())->value(), 0);
    QCOMPARE(m_engine->commands(), QStringList()); // nothing is recorded
    tick(m_page.get(), timer);                     // a late one
    QCOMPARE(m_recordLabel->text(), QString("ID_MicrophonePage_Again"));
}

void tst_MicrophonePage::countdownStartsOver()
{
    const Dictionary dictionary({{"ID_MicrophonePage_OfS", "%1"}});
    makeShownPage(Mic::Silent);
    for (int round = 0; round < 3; ++round) {
        QTest::mouseClick(m_record, Qt::LeftButton);
        runCountdown(1);
        QCOMPARE(m_recordLabel->text(), QString("5"));
        runCountdown(TicksOfACountdown - 1);
        QVERIFY(m_yes->isEnabled() && m_no->isEnabled()); // although nothing was heard
    }
}

void tst_MicrophonePage::doubleClickStartsOneCountdown()
{
    makeShownPage(Mic::Works);
    QTest::mouseClick(m_record, Qt::LeftButton);
    QTest::mouseDClick(m_record, Qt::LeftButton);
    QCOMPARE(coarseTimers(m_page.get(), CountdownIntervalMs).size(), 1);
    QVERIFY(QMetaObject::invokeMethod(m_page.get(), "on_recordButton_clicked"));
    QCOMPARE(coarseTimers(m_page.get(), CountdownIntervalMs).size(), 1);
}

void tst_MicrophonePage::foreignTicksChangeNothing()
{
    makeShownPage(Mic::Works);
    QTest::mouseClick(m_record, Qt::LeftButton);
    tick(m_page.get(), countdownTimer() + 1000);
    QCOMPARE(m_recordLabel->text(), QString("ID_MicrophonePage_Recording"));
}

void tst_MicrophonePage::hidingEndsTheCountdown()
{
    makeShownPage(Mic::Works);
    QTest::mouseClick(m_record, Qt::LeftButton);
    runCountdown(2);
    m_page->hide();
    QVERIFY(coarseTimers(m_page.get(), CountdownIntervalMs).isEmpty());
    QCOMPARE(m_recordLabel->text(), QString("ID_Record"));
    QVERIFY(m_record->isEnabled());
    QVERIFY(!m_yes->isEnabled() && !m_no->isEnabled());

    m_page->show();
    QVERIFY(!m_yes->isEnabled() && !m_no->isEnabled());
    m_engine->microphones().setState("a", DeviceState::Failed);
    turn();
    QVERIFY(!m_yes->isEnabled());
    QVERIFY(m_no->isEnabled()); // No alone comes back earlier
    m_engine->microphones().setState("a", DeviceState::Working);
    turn();
    QTest::mouseClick(m_record, Qt::LeftButton);
    runCountdown(TicksOfACountdown);
    QVERIFY(m_yes->isEnabled() && m_no->isEnabled());
}

void tst_MicrophonePage::hidingWithoutCountdownKeepsTheAnswers()
{
    makeShownPage(Mic::Works);
    QTest::mouseClick(m_record, Qt::LeftButton);
    runCountdown(TicksOfACountdown);
    m_page->hide();
    QCOMPARE(m_recordLabel->text(), QString("ID_Record"));
    QVERIFY(m_yes->isEnabled() && m_no->isEnabled());
}

void tst_MicrophonePage::handPulses()
{
    makePage();
    const auto* hand = DevicePageTools::handOn(*m_page, "Frame_Record");
    DevicePageTools::looksLikeAHand(hand);
    QCOMPARE(coarseTimers(m_page.get(), HandIntervalMs).size(), 1);
    const int timer = coarseTimers(m_page.get(), HandIntervalMs).first();
    DevicePageTools::pulses(m_page.get(), timer, hand);
    m_page->show();
    m_page->hide();
    QCOMPARE(coarseTimers(m_page.get(), HandIntervalMs), QVector<int>{timer}); // for its whole life
}

// Which picture comes next doesn't belong to the page.
void tst_MicrophonePage::handIsTheProcesss()
{
    makePage();
    MicrophonePage other;
    const auto tickAndLook = [](MicrophonePage* page) {
        tick(page, coarseTimers(page, HandIntervalMs).first());
        const auto* hand = DevicePageTools::handOn(*page, "Frame_Record");
        return hand->pixmap(Qt::ReturnByValue).size();
    };
    const QSize first = tickAndLook(m_page.get());
    QVERIFY(tickAndLook(&other) != first);
    QCOMPARE(tickAndLook(m_page.get()), first);
}

void tst_MicrophonePage::handPlace()
{
    makeShownPage(Mic::Works);
    const auto* frame = childOf<QFrame>(*m_page, "Frame_Record");
    const auto* hand = DevicePageTools::handOn(*m_page, "Frame_Record");
    QCOMPARE(hand->pos(), m_record->geometry().center() + QPoint(10, 0));
    QVERIFY(hand->isVisible());
    QCOMPARE(frame->children().last(), hand); // on top
    QVERIFY(frame->rect().contains(hand->geometry()));
    QTest::mouseClick(m_record, Qt::LeftButton);
    QVERIFY(!hand->isVisible());
    m_page->hide();
    m_page->show();
    QVERIFY(hand->isVisible());
}

void tst_MicrophonePage::answersComplete()
{
    makeShownPage(Mic::Works);
    QSignalSpy completed(m_page.get(), &CheckPage::complete);
    QTest::mouseClick(m_yes, Qt::LeftButton);
    QCOMPARE(completed.count(), 1);
    QVERIFY(m_page->isTested());
    m_page->hide();
    QVERIFY(m_page->isPassed());
    m_page->show();
    QTest::mouseClick(m_no, Qt::LeftButton);
    QCOMPARE(completed.count(), 2);
    m_page->hide();
    QVERIFY(!m_page->isPassed());
}

void tst_MicrophonePage::isPassedNeedsEverything_data()
{
    addMicsAndAnswers();
}

void tst_MicrophonePage::isPassedNeedsEverything()
{
    QFETCH(Mic, mic);
    QFETCH(Answer, answer);
    makeShownPage(mic);
    this->answer(answer);
    QVERIFY(!m_page->isPassed()); // the state hasn't been read yet
    m_page->hide();
    QCOMPARE(m_page->isPassed(), mic == Mic::Works && answer == Answer::Yes);
}

void tst_MicrophonePage::problemLines_data()
{
    addMicsAndAnswers();
}

void tst_MicrophonePage::problemLines()
{
    QFETCH(Mic, mic);
    QFETCH(Answer, answer);
    makeShownPage(mic);
    this->answer(answer);
    m_page->hide();
    QStringList expected;
    if (answer == Answer::None) {
        expected = QStringList{"ID_CameraPage_NotDetected"};
    } else if (mic == Mic::None) {
        expected = QStringList{"ID_MicrophonePage_NoMicrophoneWasDetected"};
    } else if (mic == Mic::Off || mic == Mic::Denied) {
        expected = QStringList{"ID_MicrophonePage_MicrophoneDisabled"};
    } else {
        if (mic == Mic::Silent) {
            expected.append("ID_MicrophonePage_NoVoiceWasRecorded");
        }
        if (answer == Answer::No) {
            expected.append("ID_MicrophonePage_ChoseNo");
        }
    }
    QCOMPARE(m_page->problemText(), expected.join('\n'));
}

void tst_MicrophonePage::resultsAreRecordedInOrder_data()
{
    addMicsAndAnswers();
}

void tst_MicrophonePage::resultsAreRecordedInOrder()
{
    QFETCH(Mic, mic);
    QFETCH(Answer, answer);
    makeShownPage(mic);
    this->answer(answer);
    m_page->hide();
    m_engine->clearCalls();
    m_page->saveResult();
    const int code = answer == Answer::None ? 0 : answer == Answer::Yes ? 1 : 2;
    const bool isUsable = mic == Mic::Silent || mic == Mic::Works;
    QCOMPARE(
        m_engine->calls(),
        (QStringList{
            QString("report.result(microphone.userState=%1)").arg(code),
            QString("report.result(microphone.deviceState=%1)").arg(mic == Mic::Works ? 1 : 2),
            QString("report.result(microphone.device=%1)").arg(isUsable ? MicName : NoMicText)}));
}

void tst_MicrophonePage::resultsBeforeTheFirstHide()
{
    makeShownPage(Mic::Works);
    m_page->finishCheck(true);
    QVERIFY(!m_page->isPassed());
    QCOMPARE(m_page->problemText(), QString("ID_MicrophonePage_NoMicrophoneWasDetected"));
    m_engine->clearCalls();
    m_page->saveResult();
    QCOMPARE(m_engine->calls(), (QStringList{"report.result(microphone.userState=1)",
                                             "report.result(microphone.deviceState=2)",
                                             "report.result(microphone.device=)"}));
}

void tst_MicrophonePage::destructionInTheMiddle()
{
    m_engine->microphones().setLevel("a", 0.5);
    m_engine->microphones().setVolume("a", 150);
    makeShownPage(Mic::Works);
    QTest::mouseClick(m_record, Qt::LeftButton);
    m_engine->microphones().setState("a", DeviceState::Failed);
    m_engine->microphones().plug({"b", "Second"});
    m_page.reset(); // with news under way
    turn();
    QCOMPARE(m_engine->livingSessions(), 0);
    QVERIFY(balloons().isEmpty());
}

void tst_MicrophonePage::formSizes_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QSize>("minimum");
    QTest::addColumn<QSize>("maximum");
    const auto addFixed = [](const char* name, const char* className, const QSize& size) {
        QTest::newRow(name) << className << size << size;
    };
    addFixed("stackedWidget", "QStackedWidget", {460, 220});
    addFixed("micPage", "QWidget", {460, 220});
    addFixed("label_2", "QLabel", {306, 60});
    addFixed("label", "QLabel", {50, 24});
    addFixed("Frame_Record", "QFrame", {306, 80});
    addFixed("w_intensity", "QWidget", {210, 14});
    addFixed("Btn_Record", "QPushButton", {50, 50});
    addFixed("label_Record", "QLabel", {78, 20});
    addFixed("noMicPage", "QWidget", {460, 220});
    addFixed("frame", "QFrame", {306, 172});
    addFixed("lb_NoMic", "QLabel", {36, 38});
    addFixed("cb_ad_input_name", "QCustomComboBox", {306, 30});
    addFixed("label_select_mic", "QLabel", {65, 18});
    QTest::newRow("Btn_Mic_No") << "QPushButton" << QSize(88, 31) << QSize(170, 31);
    QTest::newRow("Btn_Mic_Yes") << "QPushButton" << QSize(88, 31) << QSize(170, 31);
}

void tst_MicrophonePage::formSizes()
{
    QFETCH(QSize, maximum);
    makeShownPage(Mic::Works);
    const auto* widget = childOf<QWidget>(*m_page, QTest::currentDataTag());
    QTEST(QString(widget->metaObject()->className()), "className");
    QTEST(widget->minimumSize(), "minimum");
    QCOMPARE(widget->maximumSize(), maximum);
    QVERIFY(widget->parentWidget()->rect().contains(widget->geometry()));
}

void tst_MicrophonePage::formStyleSheets_data()
{
    QTest::addColumn<QString>("styleSheet");
    const QString button = answerButtonStyle(86, 29, 168);
    QTest::newRow("Btn_Mic_No") << button;
    QTest::newRow("Btn_Mic_Yes") << button;
    QTest::newRow("label_2") << "  font-size: 12px;\n  color: #999999;";
    QTest::newRow("label") << "  font-size: 12px;\n  color: rgb( 13, 13, 13 );";
    QTest::newRow("Frame_Record")
        << "QFrame{\nbackground-color:white;\nborder-radius:6px;\nborder: 1px solid #EBEBEB\n}";
    QTest::newRow("w_intensity")
        << "QWidget#w_intensity\n{\n    min-width: 210px;\n    max-width: 210px;\n    "
           "min-height: 14px;\n    max-height: 14px;\n}";
    QTest::newRow("label_Record") << "color: rgb(0, 146, 101);\nborder-color: rgb(255, 255, 255);";
    QTest::newRow("frame") << "background-color: rgb(242, 242, 242);";
    QTest::newRow("lb_NoMic") << "image: url(:/Kestrel/Images/no_mic.svg);";
    QTest::newRow("label_select_mic") << "  font-size: 12px;\n  color: rgb( 13, 13, 13 );";
    QTest::newRow("cb_ad_input_name") << DeviceBoxStyle;
}

void tst_MicrophonePage::formStyleSheets()
{
    makePage();
    QTEST(childOf<QWidget>(*m_page, QTest::currentDataTag())->styleSheet(), "styleSheet");
}

void tst_MicrophonePage::formDetails()
{
    makePage();
    QCOMPARE(m_page->windowTitle(), QString("Form"));
    QCOMPARE(m_page->styleSheet(), QString("background-color:white;\ncolor: rgb(35, 35, 35);"));
    QCOMPARE(m_page->minimumSize(), QSize(480, 400));
    QCOMPARE(m_page->maximumSize(), QSize(480, 400));
    QVERIFY(childOf<QLabel>(*m_page, "label_2")->wordWrap());
    QCOMPARE(m_record->iconSize(), QSize(50, 50));
    QCOMPARE(m_record->focusPolicy(), Qt::NoFocus);
    QVERIFY(m_record->styleSheet().contains("border-image: url(:/Kestrel/Images/MicN.svg)"));
    QVERIFY(m_record->styleSheet().contains("border-image: url(:/Kestrel/Images/MinS.svg)"));
    QCOMPARE(m_recordLabel->font().pixelSize(), 12); // whatever the frame's font is
    const auto* volumeRow = m_page->findChild<QHBoxLayout*>("micVolumeLayout");
    QCOMPARE(volumeRow->spacing(), 0);
    QCOMPARE(volumeRow->contentsMargins(), QMargins(25, 0, 0, 0));
    QCOMPARE(volumeRow->itemAt(1)->widget(), m_volume);
    QCOMPARE(volumeRow->stretch(1), 0);
    QVERIFY(volumeRow->itemAt(2)->spacerItem());
    QCOMPARE(m_page->findChild<QSlider*>()->maximum(), 150);
}

void tst_MicrophonePage::metaObjectHasTheTwoSlots()
{
    QCOMPARE(ownMethods(MicrophonePage::staticMetaObject),
             QList<QByteArray>(
                 {"on_cb_ad_input_name_currentIndexChanged(int)", "on_recordButton_clicked()"}));
}

QTEST_MAIN(tst_MicrophonePage)
#include "tst_MicrophonePage.moc"
