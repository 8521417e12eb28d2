// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/CameraPage.h"

#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/DevicePageTools.h"
#include "tests/support/PageTools.h"
#include "tests/support/TimerTools.h"
#include "widgets/TipsWidget.h"

#include <CommEngine/HardwareMgrInterface.h>
#include <CommEngine/PlayerContainer.h>
#include <LumUtility/LumColor.h>
#include <LumWidgets/QCustomComboBox.h>

#include <QAbstractItemView>
#include <QJsonObject>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using DevicePageTools::entries;
using Platform::DeviceState;

namespace {

enum class Camera { None, Off, Denied, NoPicture, Picture };

const QString CameraName = "Some Camera";
const QString NoCameraText = "ID_Engine_NoCamera";
const QColor EmptyPreview(242, 242, 242);

QSet<int> timerIdsOf(QObject* object)
{
    QSet<int> ids;
    for (const auto& timer : timersOf(object)) {
        ids.insert(timer.timerId);
    }
    return ids;
}

void addStates()
{
    QTest::addColumn<Camera>("camera");
    QTest::newRow("no camera") << Camera::None;
    QTest::newRow("disabled") << Camera::Off;
    QTest::newRow("access denied") << Camera::Denied;
    QTest::newRow("no picture") << Camera::NoPicture;
    QTest::newRow("picture") << Camera::Picture;
}

} // namespace

Q_DECLARE_METATYPE(Camera)

class tst_CameraPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void constructionCallsInOrder_data();
    void constructionCallsInOrder();
    void constructionTexts();
    void tipsAreAppended();
    void comboBoxSetup();
    void wheelAndArrowsChooseNothing();

    void noCameraLeavesOneEntry();
    void camerasAreOrderedById();
    void refillCallsInOrder();
    void deviceChangeCallsInOrder();
    void changesFromOutsideChooseNothing();
    void userChooses();
    void userTurnsTheCameraOff();
    void choiceFollowsTheEngine();
    void unknownCameraLeavesNoSelection();
    void refillClosesThePopup();
    void hostileNamesStayLiteral();

    void stateOnScreen_data();
    void stateOnScreen();
    void stateRecorded_data();
    void stateRecorded();
    void previewPlaysAndStops();

    void countdownUnlocksAtTheThirdTick();
    void foreignTicksChangeNothing();
    void earlierTimersAreIgnored();
    void picturesEndTheCountdown();
    void countdownRunsOutWithPicturesLost();
    void hidingStopsTheCountdown();
    void disablingEndsTheCountdown();

    void showCallsInOrder();
    void hideCallsInOrder();

    void balloonStandsAboveTheComboBox();
    void balloonLook();
    void balloonNeedsAVisiblePage();
    void balloonIsMadeOnce();
    void balloonGoesWithTheLastCamera();

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

    void balloonGoesBeforeTheCamera();
    void formGeometry_data();
    void formGeometry();
    void formStyleSheets_data();
    void formStyleSheets();
    void formDetails();
    void metaObjectHasTheOneSlot();

private:
    void plugCamera(Camera camera);
    void makePage();
    void makeShownPage(Camera camera);
    void checkLocked(int seconds) const;
    void checkUnlocked() const;
    LumToolTip* disabledBalloon() const;
    bool isBalloonVisible() const;
    QJsonObject recorded() const;

    Platform::ScriptedEngine* m_engine = nullptr;
    std::unique_ptr<CameraPage> m_page;
    QPushButton* m_canSee = nullptr;
    QPushButton* m_cant = nullptr;
    QCustomComboBox* m_combo = nullptr;
};

void tst_CameraPage::init()
{
    m_engine = &Platform::ScriptedEngine::install();
}

void tst_CameraPage::cleanup()
{
    m_page.reset();
    QCOMPARE(m_engine->livingSessions(), 0);
    QVERIFY(balloons().isEmpty());
    Platform::EngineRegistry::uninstall();
}

void tst_CameraPage::plugCamera(Camera camera)
{
    switch (camera) {
    case Camera::None:
        break;
    case Camera::Off:
        m_engine->cameras().plug({"a", CameraName});
        m_engine->cameras().choose(QString());
        break;
    case Camera::Denied:
        m_engine->cameras().plug({"a", CameraName}, DeviceState::Denied);
        break;
    case Camera::NoPicture:
        m_engine->cameras().setPictures("a", Platform::ScriptedCameras::Pictures::None);
        m_engine->cameras().plug({"a", CameraName});
        break;
    case Camera::Picture:
        m_engine->cameras().plug({"a", CameraName}, DeviceState::Working);
        break;
    }
}

void tst_CameraPage::makePage()
{
    m_page = std::make_unique<CameraPage>();
    m_canSee = childOf<QPushButton>(*m_page, "Btn_CanSee");
    m_cant = childOf<QPushButton>(*m_page, "Btn_Cant");
    m_combo = childOf<QCustomComboBox>(*m_page, "cb_vd_name");
}

void tst_CameraPage::makeShownPage(Camera camera)
{
    plugCamera(camera);
    makePage();
    m_page->move(100, 100);
    m_page->show();
}

void tst_CameraPage::checkLocked(int seconds) const
{
    QVERIFY(!m_canSee->isEnabled());
    QVERIFY(!m_cant->isEnabled());
    QCOMPARE(m_canSee->text(), QString("ID_CameraPage_Yes(%1)").arg(seconds));
    QCOMPARE(m_cant->text(), QString("ID_CameraPage_No(%1)").arg(seconds));
}

void tst_CameraPage::checkUnlocked() const
{
    QVERIFY(m_canSee->isEnabled());
    QVERIFY(m_cant->isEnabled());
    QCOMPARE(m_canSee->text(), QString("ID_CameraPage_Yes"));
    QCOMPARE(m_cant->text(), QString("ID_CameraPage_No"));
}

LumToolTip* tst_CameraPage::disabledBalloon() const
{
    return balloonWith("ID_CameraPage_DisabledWillMakeCameraUnusable");
}

bool tst_CameraPage::isBalloonVisible() const
{
    return disabledBalloon() && disabledBalloon()->isVisible();
}

QJsonObject tst_CameraPage::recorded() const
{
    const QJsonObject document = m_engine->reports().document().toJson();
    return document["results"].toObject()["camera"].toObject();
}

void tst_CameraPage::constructionCallsInOrder_data()
{
    addStates();
}

void tst_CameraPage::constructionCallsInOrder()
{
    QFETCH(Camera, camera);
    plugCamera(camera);
    makePage();
    QStringList expected = {"camera.create()", "camera.devices()", "camera.state()"};
    if (camera == Camera::NoPicture || camera == Camera::Picture) {
        expected.append("camera.delivers()");
    }
    expected += {"camera.currentId()", "camera.setOutputSize(306x172)"};
    QCOMPARE(m_engine->calls(), expected);
}

void tst_CameraPage::constructionTexts()
{
    makePage();
    QCOMPARE(childOf<QLabel>(*m_page, "label_select_camera")->text(),
             QString("ID_CameraPage_Camera"));
    // The first refresh has replaced the two buttons' first texts.
    QCOMPARE(m_canSee->text(), QString("ID_CameraPage_Yes"));
    QCOMPARE(m_cant->text(), QString("ID_CameraPage_No"));
}

void tst_CameraPage::tipsAreAppended()
{
    makePage();
    const auto* layout = m_page->findChild<QVBoxLayout*>("verticalLayout");
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->stretch(0), 0);
    auto* tips = qobject_cast<TipsWidget*>(layout->itemAt(0)->layout());
    QVERIFY(tips);
    QCOMPARE(qobject_cast<QPushButton*>(tips->itemAt(0)->widget())->text(),
             QString(" ID_CameraPage_ClickHere"));
    QVERIFY(balloonWith("ID_CameraPage_1\nID_CameraPage_2\nID_CameraPage_3\nID_CameraPage_4\n"
                        "ID_CameraPage_5"));
}

void tst_CameraPage::comboBoxSetup()
{
    makeShownPage(Camera::Picture);
    DevicePageTools::isSetUp(m_combo, m_page.get());
}

void tst_CameraPage::wheelAndArrowsChooseNothing()
{
    m_engine->cameras().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage(Camera::Picture);
    m_engine->clearCalls();
    DevicePageTools::ignoresWheelAndArrows(m_combo);
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_CameraPage::noCameraLeavesOneEntry()
{
    makeShownPage(Camera::None);
    QCOMPARE(entries(*m_combo), QStringList{NoCameraText + '=' + HardwareMgrInterface::NoneDevice});
    QCOMPARE(m_combo->currentIndex(), 0);
    QVERIFY(!isBalloonVisible());
    m_page->hide();
    m_page->finishCheck(true);
    QCOMPARE(m_page->problemText(), QString("ID_lumcamera_NoWebcamFound"));
}

void tst_CameraPage::camerasAreOrderedById()
{
    m_engine->cameras().plug({"b", "Alpha"}, DeviceState::Working);
    m_engine->cameras().plug({"a", "Zulu"}, DeviceState::Working);
    makePage();
    QCOMPARE(
        entries(*m_combo),
        (QStringList{"Zulu=a", "Alpha=b", NoCameraText + '=' + HardwareMgrInterface::NoneDevice}));
    QCOMPARE(m_combo->currentText(), QString("Alpha")); // plugged in first, so the current one
}

void tst_CameraPage::refillCallsInOrder()
{
    makePage();
    m_engine->clearCalls();
    plugCamera(Camera::Picture);
    QTRY_COMPARE(m_combo->count(), 2);
    QCoreApplication::processEvents();
    QCOMPARE(m_engine->calls(), (QStringList{"camera.devices()", "camera.state()",
                                             "camera.delivers()", "camera.currentId()"}));
}

void tst_CameraPage::deviceChangeCallsInOrder()
{
    m_engine->cameras().plug({"b", "Second"}, DeviceState::Working);
    plugCamera(Camera::Picture);
    makePage();
    m_engine->clearCalls();
    m_engine->cameras().choose("a");
    QTRY_COMPARE(m_combo->currentText(), CameraName);
    QCOMPARE(m_engine->calls(),
             (QStringList{"camera.state()", "camera.delivers()", "camera.currentId()"}));
}

void tst_CameraPage::changesFromOutsideChooseNothing()
{
    makeShownPage(Camera::Picture);
    m_engine->clearCalls();
    m_engine->cameras().plug({"b", "Second"}, DeviceState::Working);
    QTRY_COMPARE(m_combo->count(), 3);
    m_engine->cameras().choose("b");
    QTRY_COMPARE(m_combo->currentText(), QString("Second"));
    m_engine->cameras().rename("b", "Renamed");
    QTRY_COMPARE(m_combo->currentText(), QString("Renamed"));
    m_engine->cameras().unplug("b");
    QTRY_COMPARE(m_combo->currentIndex(), -1);
    m_engine->cameras().unplug("a");
    QTRY_COMPARE(m_combo->count(), 1);
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_CameraPage::userChooses()
{
    m_engine->cameras().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage(Camera::Picture);
    for (int change = 0; change < 2; ++change) { // also after a refill and a change
        m_engine->clearCalls();
        const int wanted = m_combo->findData(change == 0 ? "a" : "b");
        m_combo->showPopup();
        QAbstractItemView* view = m_combo->view();
        const QModelIndex index = m_combo->model()->index(wanted, 0);
        QTest::mouseMove(view->viewport(), view->visualRect(index).center());
        view->setCurrentIndex(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                          view->visualRect(index).center());
        QCOMPARE(m_engine->commands(),
                 QStringList{QString("camera.setCurrent(%1)").arg(change == 0 ? "a" : "b")});
        m_engine->cameras().plug({"c", "Third"}, DeviceState::Working);
        QTRY_COMPARE(m_combo->count(), 4);
    }
}

void tst_CameraPage::userTurnsTheCameraOff()
{
    makeShownPage(Camera::Picture);
    m_engine->clearCalls();
    m_combo->setCurrentIndex(1);
    QCOMPARE(m_engine->commands(), QStringList{"camera.setCurrent()"});
    QTRY_VERIFY(m_canSee->isHidden());
    QCOMPARE(m_combo->currentText(), NoCameraText);
    QVERIFY(isBalloonVisible());
}

void tst_CameraPage::choiceFollowsTheEngine()
{
    m_engine->cameras().plug({"b", "Second"}, DeviceState::Working);
    plugCamera(Camera::Picture);
    makePage();
    QCOMPARE(m_combo->currentText(), QString("Second"));
    m_engine->cameras().choose("a");
    QTRY_COMPARE(m_combo->currentText(), CameraName);
    m_engine->cameras().choose(QString());
    QTRY_COMPARE(m_combo->currentText(), NoCameraText);
}

void tst_CameraPage::unknownCameraLeavesNoSelection()
{
    m_engine->cameras().plug({"b", "Second"}, DeviceState::Working);
    plugCamera(Camera::Picture);
    m_engine->cameras().unplug("b");
    makePage();
    QCOMPARE(m_combo->currentIndex(), -1);
    QCOMPARE(m_combo->currentText(), QString());
    QCOMPARE(m_combo->count(), 2);
}

void tst_CameraPage::refillClosesThePopup()
{
    makeShownPage(Camera::Picture);
    m_combo->showPopup();
    QVERIFY(m_combo->view()->isVisible());
    m_engine->cameras().plug({"b", "Second"});
    QTRY_VERIFY(!m_combo->view()->isVisible());
}

void tst_CameraPage::hostileNamesStayLiteral()
{
    const QString name = "<img src=x><b>Camera</b> &amp; %1 " + QString(150, 'W');
    m_engine->cameras().plug({"<id>&\n%1", name}, DeviceState::Working);
    makeShownPage(Camera::None);
    QCOMPARE(m_combo->currentText(), name);
    QCOMPARE(m_combo->itemData(0).toString(), QString("<id>&\n%1"));
    QCOMPARE(m_combo->lineEdit()->cursorPosition(), 0); // its beginning is seen
    QCOMPARE(m_combo->size(), QSize(306, 30));
    m_page->hide();
    m_page->saveResult();
    QCOMPARE(recorded()["device"].toString(), name);
}

void tst_CameraPage::stateOnScreen_data()
{
    addStates();
}

void tst_CameraPage::stateOnScreen()
{
    QFETCH(Camera, camera);
    makeShownPage(camera);
    const bool isOff = camera == Camera::Off || camera == Camera::Denied;
    if (camera == Camera::None || isOff) {
        QVERIFY(m_canSee->isHidden());
        QVERIFY(m_cant->isEnabled());
        QCOMPARE(m_cant->text(), QString("ID_CameraPage_No"));
    } else if (camera == Camera::NoPicture) {
        QVERIFY(m_canSee->isVisible());
        checkLocked(3);
    } else {
        QVERIFY(m_canSee->isVisible());
        checkUnlocked();
        QVERIFY(timersOf(m_page.get()).isEmpty());
    }
    QCOMPARE(isBalloonVisible(), isOff);
    QCOMPARE(m_combo->count(), camera == Camera::None ? 1 : 2);
}

void tst_CameraPage::stateRecorded_data()
{
    addStates();
}

void tst_CameraPage::stateRecorded()
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

void tst_CameraPage::previewPlaysAndStops()
{
    makeShownPage(Camera::Picture);
    auto* preview = childOf<PlayerContainer>(*m_page, "f_video_player");
    const auto isEmpty = [preview] {
        const QImage picture = preview->grab().toImage();
        return picture.pixelColor(100, 20) == EmptyPreview &&
               picture.pixelColor(200, 150) == EmptyPreview;
    };
    QTRY_VERIFY(!isEmpty());
    m_engine->cameras().setState("a", DeviceState::Denied);
    QTRY_VERIFY(m_canSee->isHidden());
    QVERIFY(isEmpty());
    m_engine->cameras().setState("a", DeviceState::Working);
    QTRY_VERIFY(m_canSee->isVisible());
    QTRY_VERIFY(!isEmpty());
}

void tst_CameraPage::countdownUnlocksAtTheThirdTick()
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

void tst_CameraPage::foreignTicksChangeNothing()
{
    plugCamera(Camera::NoPicture);
    makePage();
    tick(m_page.get(), timersOf(m_page.get()).first().timerId + 1000);
    checkLocked(3);
}

void tst_CameraPage::earlierTimersAreIgnored()
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

void tst_CameraPage::picturesEndTheCountdown()
{
    makeShownPage(Camera::NoPicture);
    checkLocked(3);
    m_engine->cameras().setPictures("a", Platform::ScriptedCameras::Pictures::Moving);
    QTRY_VERIFY(m_canSee->isEnabled());
    checkUnlocked();
}

void tst_CameraPage::countdownRunsOutWithPicturesLost()
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

void tst_CameraPage::hidingStopsTheCountdown()
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

void tst_CameraPage::disablingEndsTheCountdown()
{
    makeShownPage(Camera::NoPicture);
    const int timers = timerIdsOf(m_page.get()).size();
    m_engine->cameras().setState("a", DeviceState::Denied);
    QTRY_VERIFY(m_canSee->isHidden());
    QVERIFY(m_cant->isEnabled());
    QCOMPARE(m_cant->text(), QString("ID_CameraPage_No"));
    QCOMPARE(timerIdsOf(m_page.get()).size(), timers - 1);
}

void tst_CameraPage::showCallsInOrder()
{
    plugCamera(Camera::Picture);
    makePage();
    m_engine->clearCalls();
    m_page->show();
    QCOMPARE(m_engine->calls(),
             (QStringList{"camera.start()", "camera.state()", "camera.delivers()"}));
}

void tst_CameraPage::hideCallsInOrder()
{
    makeShownPage(Camera::Picture);
    m_engine->clearCalls();
    m_page->hide();
    QCOMPARE(m_engine->calls(),
             (QStringList{"camera.devices()", "camera.state()", "camera.currentName()",
                          "camera.delivers()", "camera.stop()"}));
}

void tst_CameraPage::balloonStandsAboveTheComboBox()
{
    makeShownPage(Camera::Denied);
    QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    m_engine->cameras().plug({"b", "Second"}); // places it again where the window stands now
    QTRY_COMPARE(m_combo->count(), 3);
    QCoreApplication::processEvents();
    const LumToolTip* balloon = disabledBalloon();
    QVERIFY(isBalloonVisible());
    const QPoint corner = m_combo->mapToGlobal(QPoint(0, 0));
    QCOMPARE(balloon->geometry().left(), corner.x());
    QCOMPARE(balloon->geometry().bottom(), corner.y() - 1);
}

void tst_CameraPage::balloonLook()
{
    makeShownPage(Camera::Denied);
    LumToolTip* balloon = disabledBalloon();
    QVERIFY(!balloon->parent());
    QCOMPARE(balloon->windowType(), Qt::Popup);
    QVERIFY(!balloon->findChild<QLabel*>()->wordWrap());
    const QImage picture = balloon->grab().toImage();
    const QColor fill = picture.pixelColor(2, 10);
    QVERIFY(qAbs(fill.red() - LumColor::Red.red()) <= 1 &&
            qAbs(fill.green() - LumColor::Red.green()) <= 1 &&
            qAbs(fill.blue() - LumColor::Red.blue()) <= 1);
    QVERIFY(picture.pixelColor(15, picture.height() - 4).alpha() > 127); // the arrow, at the left
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(balloon, &leave);
    QVERIFY(balloon->isVisible());
}

void tst_CameraPage::balloonNeedsAVisiblePage()
{
    plugCamera(Camera::Denied);
    makePage();
    QVERIFY(!disabledBalloon());
    m_page->show();
    QVERIFY(isBalloonVisible());
    m_page->hide();
    m_engine->cameras().plug({"b", "Second"});
    QTRY_COMPARE(m_combo->count(), 3);
    QVERIFY(!isBalloonVisible()); // a refresh of the hidden page
}

void tst_CameraPage::balloonIsMadeOnce()
{
    makeShownPage(Camera::Denied);
    const QPointer<LumToolTip> first = disabledBalloon();
    const int count = balloons().size();
    m_engine->cameras().plug({"b", "Second"});
    QTRY_COMPARE(m_combo->count(), 3);
    QCoreApplication::processEvents();
    QCOMPARE(disabledBalloon(), first.data());
    QCOMPARE(balloons().size(), count);
    QVERIFY(first->isVisible());
}

void tst_CameraPage::balloonGoesWithTheLastCamera()
{
    makeShownPage(Camera::Denied);
    QVERIFY(isBalloonVisible());
    m_engine->cameras().unplug("a");
    QTRY_VERIFY(!isBalloonVisible());
    QVERIFY(m_canSee->isHidden());
    QVERIFY(m_cant->isEnabled());
}

void tst_CameraPage::problemLines_data()
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

void tst_CameraPage::problemLines()
{
    QFETCH(Camera, camera);
    QFETCH(bool, answer);
    makeShownPage(camera);
    m_page->hide();
    m_page->finishCheck(answer);
    QTEST(m_page->problemText(), "problems");
}

void tst_CameraPage::resultCodes_data()
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

void tst_CameraPage::resultCodes()
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

void tst_CameraPage::resultsAreRecordedInOrder()
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

void tst_CameraPage::isPassedNeedsEverything_data()
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

void tst_CameraPage::isPassedNeedsEverything()
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

void tst_CameraPage::unansweredPage_data()
{
    addStates();
}

void tst_CameraPage::unansweredPage()
{
    QFETCH(Camera, camera);
    makeShownPage(camera);
    m_page->hide();
    m_page->saveResult();
    QCOMPARE(recorded()["userState"].toInt(-1), 0);
    QCOMPARE(m_page->problemText(), QString("ID_CameraPage_NotDetected"));
}

void tst_CameraPage::yesWithoutPicture()
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

void tst_CameraPage::answersComplete()
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

void tst_CameraPage::balloonGoesBeforeTheCamera()
{
    makeShownPage(Camera::Denied);
    int sessions = -1;
    connect(disabledBalloon(), &QObject::destroyed, this,
            [this, &sessions] { sessions = m_engine->livingSessions(); });
    m_page.reset();
    QCOMPARE(sessions, 1);
    QCOMPARE(m_engine->calls().last(), QString("camera.destroy()"));
}

void tst_CameraPage::formGeometry_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<bool>("isFixed");
    QTest::newRow("Btn_Cant") << "QPushButton" << QRect(332, 359, 136, 30) << true;
    QTest::newRow("Btn_CanSee") << "QPushButton" << QRect(186, 359, 136, 30) << true;
    QTest::newRow("verticalLayoutWidget") << "QWidget" << QRect(90, 230, 311, 41) << false;
    QTest::newRow("label_select_camera") << "QLabel" << QRect(30, 5, 52, 18) << true;
    QTest::newRow("cb_vd_name") << "QCustomComboBox" << QRect(92, 1, 306, 30) << true;
    QTest::newRow("f_video_player") << "PlayerContainer" << QRect(92, 50, 306, 172) << true;
}

void tst_CameraPage::formGeometry()
{
    QFETCH(QString, className);
    QFETCH(QRect, geometry);
    QFETCH(bool, isFixed);
    makeShownPage(Camera::Picture);
    const auto* widget = childOf<QWidget>(*m_page, QTest::currentDataTag());
    QCOMPARE(QString(widget->metaObject()->className()), className);
    QCOMPARE(widget->parentWidget(), m_page.get());
    QCOMPARE(widget->geometry(), geometry);
    if (isFixed) {
        QCOMPARE(widget->minimumSize(), geometry.size());
        QCOMPARE(widget->maximumSize(), geometry.size());
    }
}

void tst_CameraPage::formStyleSheets_data()
{
    QTest::addColumn<QString>("styleSheet");
    const QString button = answerButtonStyle(134, 28, 134);
    QTest::newRow("Btn_Cant") << button;
    QTest::newRow("Btn_CanSee") << button;
    QTest::newRow("label_select_camera") << "  font-size: 12px;\n  color: #202020;\n";
    QTest::newRow("cb_vd_name") << DeviceBoxStyle;
    QTest::newRow("f_video_player") << "background-color: rgb(242, 242, 242);";
}

void tst_CameraPage::formStyleSheets()
{
    makePage();
    QTEST(childOf<QWidget>(*m_page, QTest::currentDataTag())->styleSheet(), "styleSheet");
    QCOMPARE(m_page->styleSheet(), QString("background-color:white;\ncolor: rgb(35, 35, 35);"));
}

void tst_CameraPage::formDetails()
{
    makePage();
    QCOMPARE(m_page->windowTitle(), QString("Form"));
    QCOMPARE(m_page->size(), QSize(480, 400));
    QCOMPARE(m_page->minimumSize(), QSize(480, 400));
    QCOMPARE(m_page->maximumSize(), QSize(480, 400));
    const auto* preview = childOf<PlayerContainer>(*m_page, "f_video_player");
    QCOMPARE(preview->frameShape(), QFrame::NoFrame);
    QCOMPARE(preview->frameShadow(), QFrame::Plain);
    QCOMPARE(preview->lineWidth(), 0);
}

void tst_CameraPage::metaObjectHasTheOneSlot()
{
    QCOMPARE(CameraPage::staticMetaObject.className(), "CameraPage");
    QCOMPARE(ownMethods(CameraPage::staticMetaObject),
             QList<QByteArray>{"onSelectCameraChanged(int)"});
}

QTEST_MAIN(tst_CameraPage)
#include "tst_CameraPage.moc"
