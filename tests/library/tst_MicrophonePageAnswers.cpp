// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/MicrophonePageTest.h"
#include "tests/support/Dictionary.h"
#include "tests/support/PageTools.h"
#include "tests/support/TimerTools.h"

#include <QProgressBar>

using Platform::DeviceState;
using TestSupport::MicrophonePageTest;

namespace {

enum class Answer { None, No, Yes };

constexpr int CountdownIntervalMs = 1000;
constexpr int TicksOfACountdown = 6;

const QVector<QPair<Answer, const char*>> AllAnswers{
    {Answer::None, "unanswered"}, {Answer::No, "no"}, {Answer::Yes, "yes"}};

} // namespace

Q_DECLARE_METATYPE(Answer)

// The countdown of a recording, the answers, and what is recorded of them.
class tst_MicrophonePageAnswers : public MicrophonePageTest
{
    Q_OBJECT

private Q_SLOTS:
    void countdown();
    void countdownStartsOver();
    void doubleClickStartsOneCountdown();
    void foreignTicksChangeNothing();
    void hidingEndsTheCountdown();
    void hidingWithoutCountdownKeepsTheAnswers();

    void answersComplete();
    void isPassedNeedsEverything_data();
    void isPassedNeedsEverything();
    void problemLines_data();
    void problemLines();
    void resultsAreRecordedInOrder_data();
    void resultsAreRecordedInOrder();
    void resultsBeforeTheFirstHide();

private:
    static void addMicsAndAnswers();
    void answer(Answer answer);
    void runCountdown(int ticks);
    int countdownTimer() { return coarseTimers(m_page.get(), CountdownIntervalMs).value(0); }
};

void tst_MicrophonePageAnswers::addMicsAndAnswers()
{
    QTest::addColumn<Mic>("mic");
    QTest::addColumn<Answer>("answer");
    for (const auto& [mic, micName] : AllMics) {
        for (const auto& [answer, answerName] : AllAnswers) {
            QTest::addRow("%s, %s", micName, answerName) << mic << answer;
        }
    }
}

void tst_MicrophonePageAnswers::answer(Answer answer)
{
    if (answer != Answer::None) {
        m_page->finishCheck(answer == Answer::Yes);
    }
}

void tst_MicrophonePageAnswers::runCountdown(int ticks)
{
    const int timer = countdownTimer();
    for (int i = 0; i < ticks; ++i) {
        tick(m_page.get(), timer);
    }
}

void tst_MicrophonePageAnswers::countdown()
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

void tst_MicrophonePageAnswers::countdownStartsOver()
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

void tst_MicrophonePageAnswers::doubleClickStartsOneCountdown()
{
    makeShownPage(Mic::Works);
    QTest::mouseClick(m_record, Qt::LeftButton);
    QTest::mouseDClick(m_record, Qt::LeftButton);
    QCOMPARE(coarseTimers(m_page.get(), CountdownIntervalMs).size(), 1);
    QVERIFY(QMetaObject::invokeMethod(m_page.get(), "on_recordButton_clicked"));
    QCOMPARE(coarseTimers(m_page.get(), CountdownIntervalMs).size(), 1);
}

void tst_MicrophonePageAnswers::foreignTicksChangeNothing()
{
    makeShownPage(Mic::Works);
    QTest::mouseClick(m_record, Qt::LeftButton);
    tick(m_page.get(), countdownTimer() + 1000);
    QCOMPARE(m_recordLabel->text(), QString("ID_MicrophonePage_Recording"));
}

void tst_MicrophonePageAnswers::hidingEndsTheCountdown()
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

void tst_MicrophonePageAnswers::hidingWithoutCountdownKeepsTheAnswers()
{
    makeShownPage(Mic::Works);
    QTest::mouseClick(m_record, Qt::LeftButton);
    runCountdown(TicksOfACountdown);
    m_page->hide();
    QCOMPARE(m_recordLabel->text(), QString("ID_Record"));
    QVERIFY(m_yes->isEnabled() && m_no->isEnabled());
}

void tst_MicrophonePageAnswers::answersComplete()
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

void tst_MicrophonePageAnswers::isPassedNeedsEverything_data()
{
    addMicsAndAnswers();
}

void tst_MicrophonePageAnswers::isPassedNeedsEverything()
{
    QFETCH(Mic, mic);
    QFETCH(Answer, answer);
    makeShownPage(mic);
    this->answer(answer);
    QVERIFY(!m_page->isPassed()); // the state hasn't been read yet
    m_page->hide();
    QCOMPARE(m_page->isPassed(), mic == Mic::Works && answer == Answer::Yes);
}

void tst_MicrophonePageAnswers::problemLines_data()
{
    addMicsAndAnswers();
}

void tst_MicrophonePageAnswers::problemLines()
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

void tst_MicrophonePageAnswers::resultsAreRecordedInOrder_data()
{
    addMicsAndAnswers();
}

void tst_MicrophonePageAnswers::resultsAreRecordedInOrder()
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

void tst_MicrophonePageAnswers::resultsBeforeTheFirstHide()
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

QTEST_MAIN(tst_MicrophonePageAnswers)
#include "tst_MicrophonePageAnswers.moc"
