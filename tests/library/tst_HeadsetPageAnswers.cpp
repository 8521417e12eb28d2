// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/HeadsetPageTest.h"
#include "tests/support/PageTools.h"

using TestSupport::HeadsetPageTest;

namespace {

enum class Pick { None, Wrong, Right };
enum class Answer { None, No, Yes };

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

} // namespace

Q_DECLARE_METATYPE(Pick)
Q_DECLARE_METATYPE(Answer)

// The picked sound, the answers, and what is recorded of them.
class tst_HeadsetPageAnswers : public HeadsetPageTest
{
    Q_OBJECT

private Q_SLOTS:
    void pickIsJudgedByTheLastClick();
    void pickedButtonsExcludeEachOther();
    void answerTip();
    void answerTipComesAndGoes();

    void answersComplete();
    void isPassedNeedsEverything_data();
    void isPassedNeedsEverything();
    void problemLines_data();
    void problemLines();
    void resultsAreRecordedInOrder_data();
    void resultsAreRecordedInOrder();
    void namesOfNoSpeaker();

private:
    void pickAndAnswer(Pick pick, Answer answer);
    void bringTo(bool hasSpeaker, Pick pick, Answer answer);
};

void tst_HeadsetPageAnswers::pickAndAnswer(Pick pick, Answer answer)
{
    if (pick != Pick::None) {
        play();
        QTest::mouseClick(pick == Pick::Right ? rightButton() : wrongButton(), Qt::LeftButton);
    }
    if (answer != Answer::None) {
        m_page->finishCheck(answer == Answer::Yes);
    }
}

void tst_HeadsetPageAnswers::bringTo(bool hasSpeaker, Pick pick, Answer answer)
{
    makeShownPage();
    pickAndAnswer(pick, answer);
    if (!hasSpeaker) {
        m_engine->scriptedSpeakers().choose(QString());
        turn();
    }
    m_page->hide();
}

void tst_HeadsetPageAnswers::pickIsJudgedByTheLastClick()
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

void tst_HeadsetPageAnswers::pickedButtonsExcludeEachOther()
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

void tst_HeadsetPageAnswers::answerTip()
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

void tst_HeadsetPageAnswers::answerTipComesAndGoes()
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

void tst_HeadsetPageAnswers::answersComplete()
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

void tst_HeadsetPageAnswers::isPassedNeedsEverything_data()
{
    addAllOutcomes();
}

void tst_HeadsetPageAnswers::isPassedNeedsEverything()
{
    QFETCH(bool, hasSpeaker);
    QFETCH(Pick, pick);
    QFETCH(Answer, answer);
    bringTo(hasSpeaker, pick, answer);
    QCOMPARE(m_page->isPassed(), hasSpeaker && pick == Pick::Right && answer == Answer::Yes);
}

void tst_HeadsetPageAnswers::problemLines_data()
{
    addAllOutcomes();
}

void tst_HeadsetPageAnswers::problemLines()
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

void tst_HeadsetPageAnswers::resultsAreRecordedInOrder_data()
{
    addAllOutcomes();
}

void tst_HeadsetPageAnswers::resultsAreRecordedInOrder()
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

void tst_HeadsetPageAnswers::namesOfNoSpeaker()
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

QTEST_MAIN(tst_HeadsetPageAnswers)
#include "tst_HeadsetPageAnswers.moc"
