// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/CameraPageTest.h"
#include "tests/support/TimerTools.h"

using Platform::DeviceState;
using TestSupport::CameraPageTest;

namespace {

QSet<int> timerIdsOf(QObject* object)
{
    QSet<int> ids;
    for (const auto& timer : timersOf(object)) {
        ids.insert(timer.timerId);
    }
    return ids;
}

} // namespace

// The countdown before the answers, the answers, and what is recorded of them.
class tst_CameraPageAnswers : public CameraPageTest
{
    Q_OBJECT

private Q_SLOTS:
    void countdownUnlocksAtTheThirdTick();
    void foreignTicksChangeNothing();
    void earlierTimersAreIgnored();
    void picturesEndTheCountdown();
    void countdownRunsOutWithPicturesLost();
    void hidingStopsTheCountdown();
    void disablingEndsTheCountdown();

    void stateRecorded_data();
    void stateRecorded();
    void problemLines_data();
    void problemLines();
    void resultCodes_data();
    void resultCodes();
    void resultsAreRecordedInOrder();
    void isPassedNeedsEverything_data();
    void isPassedNeedsEverything();
    void unansweredPage_data();
    void unansweredPage();
    void yesWithoutPicture();
    void answersComplete();
};

void tst_CameraPageAnswers::countdownUnlocksAtTheThirdTick()
{
    plugCamera(Camera::NoPicture);
    makePage();
    checkLocked(3);
    const auto timers = timersOf(m_page.get());
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.first().interval, 1000);
    QCOMPARE(timers.first().timerType, Qt::CoarseTimer);
    const int id = timers.first().timerId;
    tick(m_page.get(), id);
    checkLocked(2);
    tick(m_page.get(), id);
    checkLocked(1);
    tick(m_page.get(), id);
    checkUnlocked(); // no picture has come
    QVERIFY(timersOf(m_page.get()).isEmpty());
}

void tst_CameraPageAnswers::foreignTicksChangeNothing()
{
    plugCamera(Camera::NoPicture);
    makePage();
    tick(m_page.get(), timersOf(m_page.get()).first().timerId + 1000);
    checkLocked(3);
}

void tst_CameraPageAnswers::earlierTimersAreIgnored()
{
    plugCamera(Camera::NoPicture);
    makePage();
    const int earlier = timersOf(m_page.get()).first().timerId;
    tick(m_page.get(), earlier);
    checkLocked(2);
    m_page->show(); // starts another countdown
    checkLocked(3);
    const QSet<int> ids = timerIdsOf(m_page.get());
    QCOMPARE(ids.size(), 2);
    QVERIFY(ids.contains(earlier));
    tick(m_page.get(), earlier);
    checkLocked(3);
    const int current = *(ids - QSet<int>{earlier}).begin();
    tick(m_page.get(), current);
    checkLocked(2);
    tick(m_page.get(), current);
    tick(m_page.get(), current);
    checkUnlocked();
    QCOMPARE(timerIdsOf(m_page.get()), QSet<int>{earlier});
}

void tst_CameraPageAnswers::picturesEndTheCountdown()
{
    makeShownPage(Camera::NoPicture);
    checkLocked(3);
    m_engine->cameras().setPictures("a", Platform::ScriptedCameras::Pictures::Moving);
    QTRY_VERIFY(m_canSee->isEnabled());
    checkUnlocked();
}

void tst_CameraPageAnswers::countdownRunsOutWithPicturesLost()
{
    makeShownPage(Camera::Picture);
    checkUnlocked();
    m_engine->cameras().setState("a", DeviceState::Ready);
    QTRY_VERIFY(!m_engine->calls().isEmpty());
    m_engine->cameras().setPictures("a", Platform::ScriptedCameras::Pictures::None);
    QTRY_VERIFY(!m_canSee->isEnabled()); // the engine noticed the silence
    checkLocked(3);
    const int id = timersOf(m_page.get()).first().timerId;
    for (int second = 0; second < 3; ++second) {
        tick(m_page.get(), id);
    }
    checkUnlocked();
}

void tst_CameraPageAnswers::hidingStopsTheCountdown()
{
    plugCamera(Camera::NoPicture);
    makePage();
    tick(m_page.get(), timersOf(m_page.get()).first().timerId);
    const QSet<int> before = timerIdsOf(m_page.get());
    m_page->show();
    const QSet<int> current = timerIdsOf(m_page.get()) - before;
    QCOMPARE(current.size(), 1);
    m_page->hide();
    QVERIFY(!timerIdsOf(m_page.get()).intersects(current));
    m_engine->clearCalls();
    m_page->show();
    QCOMPARE(m_engine->commands(), QStringList{"camera.start()"});
    checkLocked(3);
    QCOMPARE(timerIdsOf(m_page.get()).size(), before.size() + 1);
}

void tst_CameraPageAnswers::disablingEndsTheCountdown()
{
    makeShownPage(Camera::NoPicture);
    const int timers = timerIdsOf(m_page.get()).size();
    m_engine->cameras().setState("a", DeviceState::Denied);
    QTRY_VERIFY(m_canSee->isHidden());
    QVERIFY(m_cant->isEnabled());
    QCOMPARE(m_cant->text(), QString("ID_CameraPage_No"));
    QCOMPARE(timerIdsOf(m_page.get()).size(), timers - 1);
}

void tst_CameraPageAnswers::stateRecorded_data()
{
    addStates();
}

void tst_CameraPageAnswers::stateRecorded()
{
    QFETCH(Camera, camera);
    makeShownPage(camera);
    m_page->hide();
    m_page->finishCheck(true);
    m_page->saveResult();
    const bool isUsable = camera == Camera::NoPicture || camera == Camera::Picture;
    QCOMPARE(recorded()["device"].toString(), isUsable ? CameraName : NoCameraText);
    QCOMPARE(recorded()["deviceState"].toInt(), camera == Camera::Picture ? 1 : 2);
    QCOMPARE(m_page->isPassed(), camera == Camera::Picture);
}

void tst_CameraPageAnswers::problemLines_data()
{
    QTest::addColumn<Camera>("camera");
    QTest::addColumn<bool>("answer");
    QTest::addColumn<QString>("problems");
    const QString noImage = "ID_CameraPage_NoCameraImageWasDetected";
    const QString choseNo = "ID_CameraPage_choseNo";
    for (const bool answer : {true, false}) {
        const char* said = answer ? "yes" : "no";
        QTest::addRow("no camera, %s", said)
            << Camera::None << answer << "ID_lumcamera_NoWebcamFound";
        QTest::addRow("disabled, %s", said)
            << Camera::Off << answer << "ID_CameraPage_CameraDisabled";
        QTest::addRow("denied, %s", said)
            << Camera::Denied << answer << "ID_CameraPage_CameraDisabled";
    }
    QTest::newRow("no picture, yes") << Camera::NoPicture << true << noImage;
    QTest::newRow("no picture, no") << Camera::NoPicture << false << noImage + '\n' + choseNo;
    QTest::newRow("picture, yes") << Camera::Picture << true << QString();
    QTest::newRow("picture, no") << Camera::Picture << false << choseNo;
}

void tst_CameraPageAnswers::problemLines()
{
    QFETCH(Camera, camera);
    QFETCH(bool, answer);
    makeShownPage(camera);
    m_page->hide();
    m_page->finishCheck(answer);
    QTEST(m_page->problemText(), "problems");
}

void tst_CameraPageAnswers::resultCodes_data()
{
    QTest::addColumn<int>("answer"); // as it is recorded
    QTest::addColumn<Camera>("camera");
    QTest::addColumn<int>("deviceState");
    for (const int answer : {0, 1, 2}) {
        QTest::addRow("answer %d, picture", answer) << answer << Camera::Picture << 1;
        QTest::addRow("answer %d, no picture", answer) << answer << Camera::NoPicture << 2;
        QTest::addRow("answer %d, disabled", answer) << answer << Camera::Denied << 2;
        QTest::addRow("answer %d, no camera", answer) << answer << Camera::None << 2;
    }
}

void tst_CameraPageAnswers::resultCodes()
{
    QFETCH(int, answer);
    QFETCH(Camera, camera);
    makeShownPage(camera);
    m_page->hide();
    if (answer != 0) {
        m_page->finishCheck(answer == 1);
    }
    m_page->saveResult();
    QCOMPARE(recorded()["userState"].toInt(), answer);
    QTEST(recorded()["deviceState"].toInt(), "deviceState");
}

void tst_CameraPageAnswers::resultsAreRecordedInOrder()
{
    makeShownPage(Camera::Picture);
    m_page->finishCheck(true);
    m_page->hide();
    m_engine->clearCalls();
    m_page->saveResult();
    QCOMPARE(m_engine->calls(), (QStringList{"report.result(camera.userState=1)",
                                             "report.result(camera.deviceState=1)",
                                             "report.result(camera.device=Some Camera)"}));
}

void tst_CameraPageAnswers::isPassedNeedsEverything_data()
{
    QTest::addColumn<Camera>("camera");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isPassed");
    QTest::newRow("picture, yes") << Camera::Picture << 1 << true;
    QTest::newRow("picture, no") << Camera::Picture << 2 << false;
    QTest::newRow("picture, unanswered") << Camera::Picture << 0 << false;
    QTest::newRow("no picture, yes") << Camera::NoPicture << 1 << false;
    QTest::newRow("disabled, yes") << Camera::Denied << 1 << false;
    QTest::newRow("no camera, yes") << Camera::None << 1 << false;
}

void tst_CameraPageAnswers::isPassedNeedsEverything()
{
    QFETCH(Camera, camera);
    QFETCH(int, answer);
    makeShownPage(camera);
    if (answer != 0) {
        m_page->finishCheck(answer == 1);
    }
    QVERIFY(!m_page->isPassed()); // the device state is read when the page is left
    m_page->hide();
    QTEST(m_page->isPassed(), "isPassed");
}

void tst_CameraPageAnswers::unansweredPage_data()
{
    addStates();
}

void tst_CameraPageAnswers::unansweredPage()
{
    QFETCH(Camera, camera);
    makeShownPage(camera);
    m_page->hide();
    m_page->saveResult();
    QCOMPARE(recorded()["userState"].toInt(-1), 0);
    QCOMPARE(m_page->problemText(), QString("ID_CameraPage_NotDetected"));
}

void tst_CameraPageAnswers::yesWithoutPicture()
{
    makeShownPage(Camera::NoPicture);
    const QSet<int> ids = timerIdsOf(m_page.get());
    for (int second = 0; second < 3; ++second) {
        for (const int id : ids) {
            tick(m_page.get(), id);
        }
    }
    QTest::mouseClick(m_canSee, Qt::LeftButton);
    m_page->hide();
    m_page->saveResult();
    QCOMPARE(recorded()["userState"].toInt(), 1);
    QCOMPARE(recorded()["deviceState"].toInt(), 2);
    QVERIFY(!m_page->isPassed());
    QCOMPARE(m_page->problemText(), QString("ID_CameraPage_NoCameraImageWasDetected"));
}

void tst_CameraPageAnswers::answersComplete()
{
    makeShownPage(Camera::Picture);
    QSignalSpy complete(m_page.get(), &CheckPage::complete);
    QTest::mouseClick(m_cant, Qt::LeftButton);
    QCOMPARE(complete.count(), 1);
    QVERIFY(m_page->isTested());
    m_page->hide();
    QVERIFY(!m_page->isPassed());
    m_page->show();
    QTest::mouseClick(m_canSee, Qt::LeftButton); // answered again
    QCOMPARE(complete.count(), 2);
    m_page->hide();
    QVERIFY(m_page->isPassed());
    QCOMPARE(complete.count(), 2); // nothing else completes the page
}

QTEST_MAIN(tst_CameraPageAnswers)
#include "tst_CameraPageAnswers.moc"
