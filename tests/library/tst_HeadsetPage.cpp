// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/HeadsetPage.h"

#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/DevicePageTools.h"
#include "tests/support/Dictionary.h"
#include "tests/support/PageTools.h"
#include "tests/support/TimerTools.h"
#include "widgets/CycleButton.h"
#include "widgets/TipsWidget.h"
#include "widgets/Volume.h"

#include <CommEngine/HardwareMgrInterface.h>

#include <QDialog>
#include <QFileInfo>
#include <QRadioButton>
#include <QSlider>
#include <QStackedWidget>
#include <QtTest>

#include <array>

using DevicePageTools::entries;
using Platform::DeviceState;

namespace {

enum class Speaker { None, Off, Vanished, Works };
enum class Pick { None, Wrong, Right };
enum class Answer { None, No, Yes };

const QString SpeakerName = "Some Speaker";
const QString NoSpeakerText = "ID_Engine_NoSpeaker";
const QString NoneChosenText = "ID_Engine_NoSpeakerSelected";
const QStringList SoundNames{"Piano",   "Seagull", "Thunder", "Doorbell",
                             "Shutter", "Bubble",  "Typing",  "Saxophone"};
const QString NamePrefix = "ID_HeadsetPage_";
constexpr int HandIntervalMs = 300;
constexpr int LongSoundMs = 60 * 1000;

void addAllOutcomes()
{
    QTest::addColumn<bool>("hasSpeaker");
    QTest::addColumn<Pick>("pick");
    QTest::addColumn<Answer>("answer");
    for (const bool hasSpeaker : {true, false}) {
        for (const auto& [pick, pickName] :
             {std::pair(Pick::None, "nothing picked"), std::pair(Pick::Wrong, "wrong one picked"),
              std::pair(Pick::Right, "right one picked")}) {
            for (const auto& [answer, answerName] :
                 {std::pair(Answer::None, "unanswered"), std::pair(Answer::No, "no"),
                  std::pair(Answer::Yes, "yes")}) {
                QTest::addRow("%s, %s, %s", hasSpeaker ? "speaker" : "no speaker", pickName,
                              answerName)
                    << hasSpeaker << pick << answer;
            }
        }
    }
}

// How far counts are from being equal, in the chi-square measure.
template <typename Counts>
double unevenness(const Counts& counts)
{
    const int total = std::accumulate(counts.begin(), counts.end(), 0);
    const double wanted = static_cast<double>(total) / static_cast<double>(counts.size());
    return std::accumulate(counts.begin(), counts.end(), 0.0, [wanted](double sum, int count) {
        return sum + (count - wanted) * (count - wanted) / wanted;
    });
}

} // namespace

Q_DECLARE_METATYPE(Speaker)
Q_DECLARE_METATYPE(Pick)
Q_DECLARE_METATYPE(Answer)

class tst_HeadsetPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void constructionCallsInOrder_data();
    void constructionCallsInOrder();
    void texts();
    void answerButtonsAtStart();
    void tipsStandBeforeTheLastItem();
    void comboBoxSetup();
    void wheelAndArrowsChooseNothing();
    void playButtonImages();

    void stateOnScreen_data();
    void stateOnScreen();
    void speakerThatComesReplacesTheEntryForNone();
    void unlistedSpeakerAddsAnEntryForNone();
    void refillNeverChooses();
    void refillClosesThePopup();
    void userChoosesOnce();
    void choiceFollowsTheEngine();
    void deviceChangeCallsInOrder();
    void hostileNamesStayLiteral();

    void volumeOfTheUser();
    void volumeFromOutside();
    void mutedSpeakerIsAtZero();
    void volumeFollowsTheWorkState();
    void volumeFollowsTheSpeaker();

    void playFlow();
    void answeringWhilePlaying();
    void playCallsInOrder();
    void hidingWhilePlayingEndsThePlayer();
    void destructionWhilePlayingEndsThePlayer();
    void doubleClickPlaysOnce();
    void playingAnewLeavesTheFirstToTheEngine();
    void playingMovesNoFocus_data();
    void playingMovesNoFocus();
    void refusedPlayerFinishes();
    void speakerGoesWhilePlaying();

    void firstPlayUsesTheFirstDraw();
    void laterPlaysDrawAgain();
    void drawIsDistinctAndUniform();
    void collidingNamesAreToldApart();

    void pickIsJudgedByTheLastClick();
    void pickedButtonsExcludeEachOther();
    void answerTip();
    void answerTipComesAndGoes();

    void handPulsesUntilTheFirstPlay();
    void handComesBackWithTheNextShow();
    void handIsTheProcesss();
    void handPlace();

    void answersComplete();
    void isPassedNeedsEverything_data();
    void isPassedNeedsEverything();
    void problemLines_data();
    void problemLines();
    void resultsAreRecordedInOrder_data();
    void resultsAreRecordedInOrder();
    void namesOfNoSpeaker();

    void formGeometry_data();
    void formGeometry();
    void formStyleSheets_data();
    void formStyleSheets();
    void formDetails();
    void metaObjectHasTheThreeSlots();

private:
    void plug(Speaker speaker);
    void makePage();
    void makeShownPage(Speaker speaker = Speaker::Works);
    void turn();
    void play() { QTest::mouseClick(m_play, Qt::LeftButton); }
    void finish();
    QString playedName();
    QRadioButton* rightButton();
    QRadioButton* wrongButton();
    QStringList shownNames();
    void pickAndAnswer(Pick pick, Answer answer);
    void bringTo(bool hasSpeaker, Pick pick, Answer answer);
    void checkAnswerButtons(bool isEnabled);
    void checkVerdictButtons(bool canHear, bool cantListen);
    LumToolTip* answerBalloon() { return m_page->findChild<LumToolTip*>(); }
    QLabel* hand();

    Platform::ScriptedEngine* m_engine = nullptr;
    std::unique_ptr<HeadsetPage> m_page;
    QCustomComboBox* m_combo = nullptr;
    CycleButton* m_play = nullptr;
    QLabel* m_playLabel = nullptr;
    QPushButton* m_canHear = nullptr;
    QPushButton* m_cantListen = nullptr;
    QStackedWidget* m_stack = nullptr;
    Volume* m_volume = nullptr;
    std::array<QRadioButton*, 4> m_items{};
};

void tst_HeadsetPage::init()
{
    m_engine = &Platform::ScriptedEngine::install();
    for (const QString& name : SoundNames) {
        m_engine->scriptedSpeakers().setSoundLength(name + ".mp3", LongSoundMs);
    }
}

void tst_HeadsetPage::cleanup()
{
    m_page.reset();
    QCOMPARE(m_engine->livingSessions(), 0);
    QVERIFY(balloons().isEmpty());
    Platform::EngineRegistry::uninstall();
}

void tst_HeadsetPage::plug(Speaker speaker)
{
    auto& speakers = m_engine->scriptedSpeakers();
    switch (speaker) {
    case Speaker::None:
        break;
    case Speaker::Off:
        speakers.plug({"a", SpeakerName}, DeviceState::Working);
        speakers.choose(QString());
        break;
    case Speaker::Vanished:
        speakers.plug({"a", SpeakerName}, DeviceState::Working);
        speakers.choose("vanished");
        break;
    case Speaker::Works:
        speakers.plug({"a", SpeakerName}, DeviceState::Working);
        break;
    }
}

void tst_HeadsetPage::makePage()
{
    m_page = std::make_unique<HeadsetPage>();
    m_combo = childOf<QCustomComboBox>(*m_page, "cb_ad_output_name");
    m_play = childOf<CycleButton>(*m_page, "tb_play_test_sound");
    m_playLabel = childOf<QLabel>(*m_page, "label_Play");
    m_canHear = childOf<QPushButton>(*m_page, "Btn_CanHear");
    m_cantListen = childOf<QPushButton>(*m_page, "Btn_CantListen");
    m_stack = childOf<QStackedWidget>(*m_page, "stackedWidget");
    m_volume = m_page->findChild<Volume*>();
    m_items = {childOf<QRadioButton>(*m_page, "item0"), childOf<QRadioButton>(*m_page, "item1"),
               childOf<QRadioButton>(*m_page, "item2"), childOf<QRadioButton>(*m_page, "item3")};
}

void tst_HeadsetPage::makeShownPage(Speaker speaker)
{
    plug(speaker);
    makePage();
    m_page->show();
}

// The scripted engine tells its news from the event loop.
void tst_HeadsetPage::turn()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
}

void tst_HeadsetPage::finish()
{
    m_engine->scriptedSpeakers().finishPlayback();
    turn();
}

// Of the sound that was played last, as the answer buttons show it.
QString tst_HeadsetPage::playedName()
{
    return NamePrefix +
           QFileInfo(m_engine->scriptedSpeakers().playedFiles().last()).completeBaseName();
}

QRadioButton* tst_HeadsetPage::rightButton()
{
    const QString name = playedName();
    const auto right = std::find_if(m_items.begin(), m_items.end(),
                                    [&name](QRadioButton* item) { return item->text() == name; });
    return right == m_items.end() ? nullptr : *right;
}

QRadioButton* tst_HeadsetPage::wrongButton()
{
    return m_items.at(0) == rightButton() ? m_items.at(1) : m_items.at(0);
}

QStringList tst_HeadsetPage::shownNames()
{
    QStringList names;
    for (const QRadioButton* item : m_items) {
        names.append(item->text());
    }
    return names;
}

void tst_HeadsetPage::pickAndAnswer(Pick pick, Answer answer)
{
    if (pick != Pick::None) {
        play();
        QTest::mouseClick(pick == Pick::Right ? rightButton() : wrongButton(), Qt::LeftButton);
    }
    if (answer != Answer::None) {
        m_page->finishCheck(answer == Answer::Yes);
    }
}

void tst_HeadsetPage::bringTo(bool hasSpeaker, Pick pick, Answer answer)
{
    makeShownPage();
    pickAndAnswer(pick, answer);
    if (!hasSpeaker) {
        m_engine->scriptedSpeakers().choose(QString());
        turn();
    }
    m_page->hide();
}

void tst_HeadsetPage::checkAnswerButtons(bool isEnabled)
{
    for (const QRadioButton* item : m_items) {
        QVERIFY(item->isVisibleTo(m_page.get()));
        QCOMPARE(item->isEnabled(), isEnabled);
    }
}

void tst_HeadsetPage::checkVerdictButtons(bool canHear, bool cantListen)
{
    QCOMPARE(m_canHear->isEnabled(), canHear);
    QCOMPARE(m_cantListen->isEnabled(), cantListen);
}

QLabel* tst_HeadsetPage::hand()
{
    return DevicePageTools::handOn(*m_page, "playArea");
}

void tst_HeadsetPage::constructionCallsInOrder_data()
{
    QTest::addColumn<Speaker>("speaker");
    QTest::newRow("none") << Speaker::None;
    QTest::newRow("turned off") << Speaker::Off;
    QTest::newRow("vanished") << Speaker::Vanished;
    QTest::newRow("works") << Speaker::Works;
}

void tst_HeadsetPage::constructionCallsInOrder()
{
    QFETCH(Speaker, speaker);
    plug(speaker);
    makePage();
    QCOMPARE(m_engine->calls(),
             (QStringList{"speaker.create()", "engine.speakers()", "speaker.currentId()",
                          "speaker.volume()", "speaker.state()"}));
}

void tst_HeadsetPage::texts()
{
    makePage();
    QCOMPARE(m_canHear->text(), QString("ID_HeadsetPage_CanHear"));
    QCOMPARE(m_cantListen->text(), QString("ID_HeadsetPage_CanNotHear"));
    QCOMPARE(childOf<QLabel>(*m_page, "label_select_headphone")->text(),
             QString("ID_HeadsetPage_Speaker"));
    QCOMPARE(childOf<QLabel>(*m_page, "label")->text(), QString("ID_Volume"));
    QCOMPARE(childOf<QLabel>(*m_page, "label_2")->text(), QString("ID_HeadsetPage_Tip"));
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Play"));
}

void tst_HeadsetPage::answerButtonsAtStart()
{
    plug(Speaker::Works);
    makePage();
    checkAnswerButtons(false);
    for (const QRadioButton* item : m_items) {
        QVERIFY(!item->isChecked());
        QVERIFY(SoundNames.contains(item->text().mid(NamePrefix.size())));
        QCOMPARE(item->styleSheet(),
                 QString("QRadioButton { font-size: 12px; color: #999999; }QRadioButton:checked { "
                         "color: #009265; border: transparent; }QRadioButton::indicator::"
                         "unchecked{image: url(:/im/images/chat/radiobutton_unchecked.svg);}"
                         "QRadioButton::indicator::checked{image: "
                         "url(:/im/images/chat/radiobutton_checked.svg);}QRadioButton::indicator::"
                         "unchecked:disabled{image: "
                         "url(:/im/images/chat/radiobutton_unchecked_disabled.svg);}"
                         "QRadioButton::indicator::checked:disabled{image: "
                         "url(:/im/images/chat/radiobutton_checked_disabled.svg);}"));
    }
}

void tst_HeadsetPage::tipsStandBeforeTheLastItem()
{
    makePage();
    const auto* layout = m_page->findChild<QVBoxLayout*>("verticalLayout");
    QCOMPARE(layout->count(), 2);
    auto* tips = qobject_cast<TipsWidget*>(layout->itemAt(0)->layout());
    QVERIFY(tips);
    QCOMPARE(qobject_cast<QPushButton*>(tips->itemAt(0)->widget())->text(),
             QString(" ID_HeadsetPage_ClickHere"));
    QVERIFY(balloonWith("ID_CameraPage_1\nID_HeadsetPage_2\nID_HeadsetPage_3\n"
                        "ID_HeadsetPage_4\nID_CameraPage_5"));
}

void tst_HeadsetPage::comboBoxSetup()
{
    makeShownPage();
    DevicePageTools::isSetUp(m_combo, m_page.get());
    DevicePageTools::hasALongPopup(m_combo);
}

void tst_HeadsetPage::wheelAndArrowsChooseNothing()
{
    m_engine->scriptedSpeakers().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage();
    m_engine->clearCalls();
    DevicePageTools::ignoresWheelAndArrows(m_combo);
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_HeadsetPage::playButtonImages()
{
    makePage();
    const QRegularExpression style(
        "^QPushButton\\{border:none;background: transparent;image:url\\(:/Kestrel/Images/"
        "play\\.svg\\);\\}QPushButton:hover\\{image:url\\(:/Kestrel/Images/play_hover\\.svg\\);\\}"
        "QPushButton:disabled\\{image:url\\(:/Kestrel/Images/playing([012])\\.svg\\);\\}$");
    QString frames;
    for (int i = 0; i < 3; ++i) {
        const auto match = style.match(m_play->styleSheet());
        QVERIFY2(match.hasMatch(), qPrintable(m_play->styleSheet()));
        frames += match.captured(1);
        m_play->updateStyle();
    }
    QVERIFY2(QString("01201").contains(frames), qPrintable(frames));
}

void tst_HeadsetPage::stateOnScreen_data()
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

void tst_HeadsetPage::stateOnScreen()
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

void tst_HeadsetPage::speakerThatComesReplacesTheEntryForNone()
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

void tst_HeadsetPage::unlistedSpeakerAddsAnEntryForNone()
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

void tst_HeadsetPage::refillNeverChooses()
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

void tst_HeadsetPage::refillClosesThePopup()
{
    makeShownPage();
    m_combo->showPopup();
    QVERIFY(m_combo->view()->isVisible());
    m_engine->scriptedSpeakers().plug({"b", "Second"});
    turn();
    QVERIFY(!m_combo->view()->isVisible());
}

void tst_HeadsetPage::userChoosesOnce()
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

void tst_HeadsetPage::choiceFollowsTheEngine()
{
    m_engine->scriptedSpeakers().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage();
    QCOMPARE(m_combo->currentText(), QString("Second"));
    m_engine->scriptedSpeakers().choose("a");
    turn();
    QCOMPARE(m_combo->currentText(), SpeakerName);
}

void tst_HeadsetPage::deviceChangeCallsInOrder()
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

void tst_HeadsetPage::hostileNamesStayLiteral()
{
    const QString name = "<b>Bold</b> & %1 \u202E" + QString(100, 'x');
    m_engine->scriptedSpeakers().plug({"a", name}, DeviceState::Working);
    makeShownPage(Speaker::None);
    QCOMPARE(m_combo->currentText(), name);
    m_page->hide();
    m_page->saveResult();
    QCOMPARE(m_engine->commands().last(), "report.result(speaker.device=" + name + ')');
}

void tst_HeadsetPage::volumeOfTheUser()
{
    makeShownPage();
    m_engine->clearCalls();
    m_page->findChild<QSlider*>()->setValue(77);
    turn();
    QCOMPARE(m_engine->commands(), QStringList{"speaker.setVolume(77)"});
    m_page->findChild<QSlider*>()->setValue(1000);
    QCOMPARE(m_engine->commands().last(), QString("speaker.setVolume(100)"));
}

void tst_HeadsetPage::volumeFromOutside()
{
    makeShownPage();
    m_engine->clearCalls();
    m_engine->scriptedSpeakers().moveVolumeFromOutside(23);
    turn();
    QCOMPARE(m_page->findChild<QSlider*>()->value(), 23);
    QCOMPARE(m_volume->findChild<QLabel*>()->text(), QString("23"));
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_HeadsetPage::mutedSpeakerIsAtZero()
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

void tst_HeadsetPage::volumeFollowsTheWorkState()
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

void tst_HeadsetPage::volumeFollowsTheSpeaker()
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

void tst_HeadsetPage::playFlow()
{
    makeShownPage(); // idle
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Play"));
    QVERIFY(m_play->isEnabled());
    checkAnswerButtons(false);
    checkVerdictButtons(true, false);

    play(); // playing
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Playing"));
    QVERIFY(!m_play->isEnabled());
    checkAnswerButtons(true);
    checkVerdictButtons(false, false);

    finish(); // finished
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_PlayAgain"));
    QVERIFY(m_play->isEnabled());
    checkAnswerButtons(true);
    checkVerdictButtons(false, true);

    QTest::mouseClick(wrongButton(), Qt::LeftButton); // answered
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_PlayAgain"));
    QVERIFY(m_play->isEnabled());
    checkAnswerButtons(true);
    checkVerdictButtons(true, true);

    play(); // playing again
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Playing"));
    checkVerdictButtons(false, false);
    for (const QRadioButton* item : m_items) {
        QVERIFY(!item->isChecked());
    }
    QTest::mouseClick(rightButton(), Qt::LeftButton);

    m_page->hide(); // hidden
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Play"));
    QVERIFY(m_play->isEnabled());
    checkAnswerButtons(false);
    checkVerdictButtons(false, false);
    for (const QRadioButton* item : m_items) {
        QVERIFY(!item->isChecked());
    }
    m_page->show(); // nothing comes back by itself
    checkVerdictButtons(false, false);
}

void tst_HeadsetPage::answeringWhilePlaying()
{
    makeShownPage();
    play();
    QTest::mouseClick(rightButton(), Qt::LeftButton);
    checkVerdictButtons(true, true);
    QVERIFY(!m_play->isEnabled());
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Playing"));
    finish();
    checkVerdictButtons(true, true);
    QVERIFY(rightButton()->isChecked());
}

void tst_HeadsetPage::playCallsInOrder()
{
    makeShownPage();
    m_engine->clearCalls();
    play();
    const QString path = m_engine->scriptedSpeakers().playedFiles().last();
    QCOMPARE(QFileInfo(path).absolutePath(),
             QCoreApplication::applicationDirPath() + "/html/sounds/speakerCheck");
    const QString created = "player.create(" + QFileInfo(path).fileName() + ')';
    QCOMPARE(m_engine->calls(), QStringList{created});
    finish();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_engine->calls(), (QStringList{created, "player.destroy()"}));
    QCOMPARE(m_engine->livingSessions(), 1); // the speaker's
}

void tst_HeadsetPage::hidingWhilePlayingEndsThePlayer()
{
    makeShownPage();
    play();
    m_engine->clearCalls();
    m_page->hide();
    QCOMPARE(m_engine->calls(),
             (QStringList{"speaker.currentId()", "speaker.currentName()", "player.destroy()"}));
    QCOMPARE(m_engine->livingSessions(), 1);
    finish(); // too late
    QCOMPARE(m_playLabel->text(), QString("ID_HeadsetPage_Play"));
    checkVerdictButtons(false, false);
    m_page->show();
    play();
    QVERIFY(!m_play->isEnabled());
}

void tst_HeadsetPage::destructionWhilePlayingEndsThePlayer()
{
    makeShownPage();
    play();
    m_engine->scriptedSpeakers().finishPlayback(); // under way while the page goes
    m_page.reset();
    QCOMPARE(m_engine->livingSessions(), 0);
    turn();
}

void tst_HeadsetPage::doubleClickPlaysOnce()
{
    makeShownPage();
    play();
    QTest::mouseDClick(m_play, Qt::LeftButton);
    play();
    QCOMPARE(m_engine->scriptedSpeakers().playedFiles().size(), 1);
}

// No click gets there: the button is disabled. The first one ends with the speaker.
void tst_HeadsetPage::playingAnewLeavesTheFirstToTheEngine()
{
    makeShownPage();
    play();
    QVERIFY(QMetaObject::invokeMethod(m_page.get(), "onTestLoudspeaker"));
    QCOMPARE(m_engine->scriptedSpeakers().playedFiles().size(), 2);
    QCOMPARE(m_engine->livingSessions(), 3); // the speaker's and two players'
    m_page->hide();
    QCOMPARE(m_engine->livingSessions(), 2);
    m_page.reset();
    QCOMPARE(m_engine->livingSessions(), 0);
}

void tst_HeadsetPage::playingMovesNoFocus_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

// Somebody who presses twice picks no answer and answers nothing.
void tst_HeadsetPage::playingMovesNoFocus()
{
    QFETCH(Qt::Key, key);
    plug(Speaker::Works);
    makePage();
    QDialog dialog;
    m_page->setParent(&dialog); // which presses its default button at Return
    const auto release = qScopeGuard([this] { m_page->setParent(nullptr); });
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QSignalSpy completed(m_page.get(), &CheckPage::complete);
    m_play->setFocus(Qt::TabFocusReason);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Space);
    finish(); // from now on the answers are enabled

    for (int played = 2; played <= 3; ++played) {
        QCOMPARE(dialog.focusWidget(), m_play);
        QTest::keyClick(dialog.windowHandle(), key);
        QCOMPARE(m_engine->scriptedSpeakers().playedFiles().size(), played);
        QCOMPARE(dialog.focusWidget(), m_play);
        QTest::keyClick(dialog.windowHandle(), key);
        checkAnswerButtons(true);
        for (const QRadioButton* item : m_items) {
            QVERIFY(!item->isChecked());
        }
        checkVerdictButtons(false, false);
        QVERIFY(!m_play->isEnabled());
        QCOMPARE(completed.count(), 0);
        finish();
    }
    QTest::keyClick(dialog.windowHandle(), key);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), m_items.at(2)); // the first of them to the eye
}

void tst_HeadsetPage::refusedPlayerFinishes()
{
    m_engine->scriptedSpeakers().setPlayerFails(true);
    makeShownPage();
    play();
    QTRY_COMPARE(m_playLabel->text(), QString("ID_HeadsetPage_PlayAgain"));
    QVERIFY(m_play->isEnabled());
    checkVerdictButtons(false, true);
}

void tst_HeadsetPage::speakerGoesWhilePlaying()
{
    makeShownPage();
    play();
    m_engine->scriptedSpeakers().unplug("a");
    turn();
    QCOMPARE(m_stack->currentWidget()->objectName(), QString("noHeadsetPage"));
    checkVerdictButtons(false, true);
    QTRY_VERIFY(m_play->isEnabled());
    QVERIFY(!answerBalloon()->isVisible());
}

void tst_HeadsetPage::firstPlayUsesTheFirstDraw()
{
    makeShownPage();
    const QStringList drawn = shownNames();
    m_page->hide();
    m_page->show();
    play();
    QCOMPARE(shownNames(), drawn);
    QVERIFY(rightButton());
}

// That a second draw is the first again happens once in 1680 times.
void tst_HeadsetPage::laterPlaysDrawAgain()
{
    makeShownPage();
    QSet<QStringList> draws;
    QSet<QString> sounds;
    for (int i = 0; i < 20; ++i) {
        play();
        draws.insert(shownNames());
        sounds.insert(playedName());
        finish();
    }
    QVERIFY(draws.size() > 10);
    QVERIFY(sounds.size() > 2);
}

// The limits are passed by chance less than once in a million runs.
void tst_HeadsetPage::drawIsDistinctAndUniform()
{
    constexpr int Draws = 2000;
    constexpr double LimitOfEight = 42;
    constexpr double LimitOfFour = 32;
    makeShownPage();
    std::array<int, 8> played{};
    std::array<int, 4> places{};
    std::array<std::array<int, 8>, 4> shown{};
    const auto indexOf = [](const QString& name) {
        return static_cast<std::size_t>(SoundNames.indexOf(name.mid(NamePrefix.size())));
    };
    for (int i = 0; i < Draws; ++i) {
        QVERIFY(QMetaObject::invokeMethod(m_page.get(), "onTestLoudspeaker"));
        const QStringList names = shownNames();
        QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), 4);
        QVERIFY(names.contains(playedName()));
        ++played.at(indexOf(playedName()));
        ++places.at(static_cast<std::size_t>(names.indexOf(playedName())));
        for (std::size_t button = 0; button < shown.size(); ++button) {
            ++shown.at(button).at(indexOf(names.at(static_cast<int>(button))));
        }
    }
    QVERIFY2(unevenness(played) < LimitOfEight, qPrintable(QString::number(unevenness(played))));
    QVERIFY2(unevenness(places) < LimitOfFour, qPrintable(QString::number(unevenness(places))));
    for (const auto& counts : shown) {
        QVERIFY2(unevenness(counts) < LimitOfEight,
                 qPrintable(QString::number(unevenness(counts))));
    }
}

void tst_HeadsetPage::collidingNamesAreToldApart()
{
    QHash<QString, QString> words;
    for (const QString& name : SoundNames) {
        words.insert(NamePrefix + name, "Sound");
    }
    words.insert(NamePrefix + "Seagull", "Sound (2)");
    const Dictionary dictionary(words);
    makeShownPage();
    QMap<QString, QSet<QString>> filesOf;
    for (int i = 0; i < 200; ++i) {
        QVERIFY(QMetaObject::invokeMethod(m_page.get(), "onTestLoudspeaker"));
        const QStringList names = shownNames();
        QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), 4);
        int rightOnes = 0;
        for (QRadioButton* item : m_items) {
            item->click();
            m_page->finishCheck(true);
            if (m_page->isPassed()) {
                ++rightOnes;
                filesOf[item->text()].insert(m_engine->scriptedSpeakers().playedFiles().last());
            }
        }
        QCOMPARE(rightOnes, 1);
    }
    QCOMPARE(filesOf.keys(), (QStringList{"Sound", "Sound (2)", "Sound (3)", "Sound (4)",
                                          "Sound (5)", "Sound (6)", "Sound (7)", "Sound (8)"}));
    for (const QSet<QString>& files : filesOf) {
        QCOMPARE(files.size(), 1);
    }
}

void tst_HeadsetPage::pickIsJudgedByTheLastClick()
{
    makeShownPage();
    play();
    m_page->finishCheck(true);
    QVERIFY(!m_page->isPassed());
    rightButton()->click();
    QVERIFY(m_page->isPassed());
    wrongButton()->click();
    QVERIFY(!m_page->isPassed());
    rightButton()->click();
    QVERIFY(m_page->isPassed());
    finish();
    play(); // a new sound, not picked yet
    QVERIFY(!m_page->isPassed());
}

void tst_HeadsetPage::pickedButtonsExcludeEachOther()
{
    makeShownPage();
    play();
    for (QRadioButton* item : m_items) {
        QTest::mouseClick(item, Qt::LeftButton);
        for (const QRadioButton* other : m_items) {
            QCOMPARE(other->isChecked(), other == item);
        }
    }
}

void tst_HeadsetPage::answerTip()
{
    makeShownPage();
    QVERIFY(!answerBalloon());
    play();
    LumToolTip* tip = answerBalloon();
    QVERIFY(tip->isVisible());
    QCOMPARE(tip->text(), QString("ID_HeadsetPage_PleaseSelectTheAnswer"));
    QCOMPARE(tip->parentWidget()->objectName(), QString("page_play"));
    QVERIFY(!tip->findChild<QLabel*>()->wordWrap());
    QCOMPARE(tip->size(), tip->sizeHint());
    QCOMPARE(tip->geometry().bottomRight(),
             childOf<QFrame>(*m_page, "playArea")->geometry().topRight() + QPoint(24, 6));
    QVERIFY(tip->parentWidget()->rect().contains(tip->geometry()));
    QVERIFY(isArrowInTheMiddle(*tip));
    const QColor fill = tip->grab().toImage().pixelColor(20, 2);
    QVERIFY(fill.green() > 130 && fill.red() < 60);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(tip, &leave);
    QVERIFY(tip->isVisible());
}

void tst_HeadsetPage::answerTipComesAndGoes()
{
    makeShownPage();
    play();
    LumToolTip* tip = answerBalloon();
    finish();
    QVERIFY(tip->isVisible());
    QTest::mouseClick(m_items.at(3), Qt::LeftButton);
    QVERIFY(!tip->isVisible());
    play();
    QCOMPARE(m_page->findChildren<LumToolTip*>(), QList<LumToolTip*>{tip});
    QVERIFY(tip->isVisible());
    m_page->hide();
    m_page->show();
    QVERIFY(!tip->isVisible());
}

void tst_HeadsetPage::handPulsesUntilTheFirstPlay()
{
    plug(Speaker::Works);
    makePage();
    DevicePageTools::looksLikeAHand(hand());
    QCOMPARE(coarseTimers(m_page.get(), HandIntervalMs).size(), 1);
    const int ofConstructor = coarseTimers(m_page.get(), HandIntervalMs).first();

    m_page->show();
    QVector<int> timers = coarseTimers(m_page.get(), HandIntervalMs);
    QCOMPARE(timers.size(), 2);
    timers.removeOne(ofConstructor);
    const int ofShow = timers.first();
    tick(m_page.get(), ofConstructor); // no longer counts
    QVERIFY(hand()->pixmap(Qt::ReturnByValue).isNull());
    DevicePageTools::pulses(m_page.get(), ofShow, hand());
    const QSize last = hand()->pixmap(Qt::ReturnByValue).size();

    play();
    QVERIFY(!hand()->isVisible());
    QCOMPARE(coarseTimers(m_page.get(), HandIntervalMs), QVector<int>{ofConstructor});
    tick(m_page.get(), ofShow); // a late one
    QCOMPARE(hand()->pixmap(Qt::ReturnByValue).size(), last);
    finish();
    QVERIFY(!hand()->isVisible());
}

void tst_HeadsetPage::handComesBackWithTheNextShow()
{
    makeShownPage();
    play();
    m_page->hide();
    QCOMPARE(coarseTimers(m_page.get(), HandIntervalMs).size(), 1);
    m_page->show();
    QCOMPARE(coarseTimers(m_page.get(), HandIntervalMs).size(), 2);
    QVERIFY(hand()->isVisible());
}

// Which picture comes next doesn't belong to the page.
void tst_HeadsetPage::handIsTheProcesss()
{
    makePage();
    const auto tickAndLook = [this] {
        tick(m_page.get(), coarseTimers(m_page.get(), HandIntervalMs).first());
        return hand()->pixmap(Qt::ReturnByValue).size();
    };
    const QSize first = tickAndLook();
    makePage();
    QVERIFY(tickAndLook() != first);
    makePage();
    QCOMPARE(tickAndLook(), first);
}

void tst_HeadsetPage::handPlace()
{
    makeShownPage();
    const auto* area = childOf<QFrame>(*m_page, "playArea");
    QCOMPARE(hand()->pos(), m_play->geometry().center() + QPoint(10, 0));
    QVERIFY(hand()->isVisible());
    QCOMPARE(area->children().last(), hand()); // on top
    QVERIFY(area->rect().contains(hand()->geometry()));
}

void tst_HeadsetPage::answersComplete()
{
    makeShownPage();
    QSignalSpy completed(m_page.get(), &CheckPage::complete);
    play();
    QTest::mouseClick(rightButton(), Qt::LeftButton);
    QTest::mouseClick(m_canHear, Qt::LeftButton);
    QCOMPARE(completed.count(), 1);
    QVERIFY(m_page->isTested());
    QVERIFY(m_page->isPassed());
    QTest::mouseClick(m_cantListen, Qt::LeftButton);
    QCOMPARE(completed.count(), 2);
    QVERIFY(!m_page->isPassed());
}

void tst_HeadsetPage::isPassedNeedsEverything_data()
{
    addAllOutcomes();
}

void tst_HeadsetPage::isPassedNeedsEverything()
{
    QFETCH(bool, hasSpeaker);
    QFETCH(Pick, pick);
    QFETCH(Answer, answer);
    bringTo(hasSpeaker, pick, answer);
    QCOMPARE(m_page->isPassed(), hasSpeaker && pick == Pick::Right && answer == Answer::Yes);
}

void tst_HeadsetPage::problemLines_data()
{
    addAllOutcomes();
}

void tst_HeadsetPage::problemLines()
{
    QFETCH(bool, hasSpeaker);
    QFETCH(Pick, pick);
    QFETCH(Answer, answer);
    bringTo(hasSpeaker, pick, answer);
    QStringList expected;
    if (answer == Answer::None) {
        expected = QStringList{"ID_CameraPage_NotDetected"};
    } else if (!hasSpeaker) {
        expected = QStringList{"ID_hardwaremgrinterface_NoSpeakerFound"};
    } else {
        if (answer == Answer::No) {
            expected.append("ID_HeadsetPage_choseNo");
        }
        if (pick != Pick::Right) {
            expected.append("ID_HeadsetPage_ChoseWrong");
        }
    }
    QCOMPARE(m_page->problemText(), expected.join('\n'));
}

void tst_HeadsetPage::resultsAreRecordedInOrder_data()
{
    addAllOutcomes();
}

void tst_HeadsetPage::resultsAreRecordedInOrder()
{
    QFETCH(bool, hasSpeaker);
    QFETCH(Pick, pick);
    QFETCH(Answer, answer);
    bringTo(hasSpeaker, pick, answer);
    m_engine->clearCalls();
    m_page->saveResult();
    const int code = answer == Answer::None ? 0 : answer == Answer::Yes ? 1 : 2;
    QCOMPARE(m_engine->calls(),
             (QStringList{
                 QString("report.result(speaker.userState=%1)").arg(code),
                 QString("report.result(speaker.deviceState=%1)").arg(pick == Pick::Right ? 1 : 2),
                 QString("report.result(speaker.device=%1)")
                     .arg(hasSpeaker ? SpeakerName : NoneChosenText)}));
}

void tst_HeadsetPage::namesOfNoSpeaker()
{
    makeShownPage(Speaker::None);
    m_page->saveResult(); // not left yet
    QCOMPARE(m_engine->commands().last(), QString("report.result(speaker.device=)"));
    m_page->hide();
    m_page->saveResult();
    QCOMPARE(m_engine->commands().last(), "report.result(speaker.device=" + NoSpeakerText + ')');
    m_engine->scriptedSpeakers().plug({"a", SpeakerName});
    m_engine->scriptedSpeakers().choose(QString());
    m_page->updateDeviceState();
    m_page->saveResult();
    QCOMPARE(m_engine->commands().last(), "report.result(speaker.device=" + NoneChosenText + ')');
}

void tst_HeadsetPage::formGeometry_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QRect>("geometry");
    const auto add = [](const char* name, const char* className, const char* parent, QRect rect) {
        QTest::newRow(name) << className << parent << rect;
    };
    add("Btn_CanHear", "QPushButton", "HeadsetPage", {186, 359, 136, 30});
    add("Btn_CantListen", "QPushButton", "HeadsetPage", {332, 359, 136, 30});
    add("label_select_headphone", "QLabel", "HeadsetPage", {25, 5, 65, 18});
    add("cb_ad_output_name", "QCustomComboBox", "HeadsetPage", {92, 0, 306, 30});
    add("stackedWidget", "QStackedWidget", "HeadsetPage", {0, 30, 460, 220});
    add("layoutWidget", "QWidget", "page_play", {0, 170, 441, 31});
    add("tb_play_test_sound", "CycleButton", "playArea", {15, 6, 50, 50});
    add("frame", "QFrame", "noHeadsetPage", {92, 20, 306, 150});
}

void tst_HeadsetPage::formGeometry()
{
    makePage(); // a shown one grows its volume row to what it needs
    const auto* widget = childOf<QWidget>(*m_page, QTest::currentDataTag());
    QTEST(QString(widget->metaObject()->className()), "className");
    QTEST(widget->parentWidget()->objectName(), "parent");
    QTEST(widget->geometry(), "geometry");
}

void tst_HeadsetPage::formStyleSheets_data()
{
    QTest::addColumn<QString>("styleSheet");
    const QString button = answerButtonStyle(134, 28, 134);
    QTest::newRow("Btn_CanHear") << button;
    QTest::newRow("Btn_CantListen") << button;
    QTest::newRow("playArea") << "QFrame{\nborder-radius:6px;\nborder: 1px solid #EBEBEB\n}";
    QTest::newRow("cb_ad_output_name") << DeviceBoxStyle;
}

void tst_HeadsetPage::formStyleSheets()
{
    makePage();
    QTEST(childOf<QWidget>(*m_page, QTest::currentDataTag())->styleSheet(), "styleSheet");
}

void tst_HeadsetPage::formDetails()
{
    makeShownPage();
    QCOMPARE(m_page->minimumSize(), QSize(480, 400));
    QCOMPARE(m_page->maximumSize(), QSize(480, 400));
    const std::array<QPoint, 3> places{QPoint(90, 40), QPoint(200, 14), QPoint(90, 14)};
    for (std::size_t i = 0; i < places.size(); ++i) {
        QCOMPARE(m_items.at(i)->pos(), places.at(i));
    }
    for (const QRadioButton* item : m_items) {
        QCOMPARE(item->maximumWidth(), 95);
        QCOMPARE(item->parentWidget()->objectName(), QString("playArea"));
    }
    const auto* volumeRow = m_page->findChild<QHBoxLayout*>("volumeLayout");
    QCOMPARE(volumeRow->itemAt(0)->widget()->objectName(), QString("label"));
    QCOMPARE(volumeRow->itemAt(1)->widget(), m_volume);
    QCOMPARE(volumeRow->stretch(1), 0);
    QVERIFY(volumeRow->itemAt(2)->spacerItem());
    QCOMPARE(m_page->findChild<QSlider*>()->maximum(), 100);
}

void tst_HeadsetPage::metaObjectHasTheThreeSlots()
{
    QCOMPARE(ownMethods(HeadsetPage::staticMetaObject),
             QList<QByteArray>({"onTestLoudspeaker()", "onAnswerButtonClicked(QAbstractButton*)",
                                "on_SpeakerIndexChanged(int)"}));
}

QTEST_MAIN(tst_HeadsetPage)
#include "tst_HeadsetPage.moc"
