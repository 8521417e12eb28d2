// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/CameraPageTest.h"
#include "tests/support/DevicePageTools.h"

#include <CommEngine/HardwareMgrInterface.h>
#include <LumUtility/LumColor.h>

using DevicePageTools::entries;
using Platform::DeviceState;
using TestSupport::CameraPageTest;

// The list of cameras, the choice, and the balloon of a camera that is turned off.
class tst_CameraPageDevices : public CameraPageTest
{
    Q_OBJECT

private Q_SLOTS:
    void noCameraLeavesOneEntry();
    void camerasAreOrderedById();
    void refillCallsInOrder();
    void deviceChangeCallsInOrder();
    void changesFromOutsideChooseNothing();
    void userChooses();
    void userTurnsTheCameraOff();
    void wheelAndArrowsChooseNothing();
    void choiceFollowsTheEngine();
    void unknownCameraLeavesNoSelection();
    void refillClosesThePopup();
    void hostileNamesStayLiteral();

    void balloonStandsAboveTheComboBox();
    void balloonLook();
    void balloonNeedsAVisiblePage();
    void balloonIsMadeOnce();
    void balloonGoesWithTheLastCamera();
    void balloonGoesBeforeTheCamera();
};

void tst_CameraPageDevices::noCameraLeavesOneEntry()
{
    makeShownPage(Camera::None);
    QCOMPARE(entries(*m_combo), QStringList{NoCameraText + '=' + HardwareMgrInterface::NoneDevice});
    QCOMPARE(m_combo->currentIndex(), 0);
    QVERIFY(!isBalloonVisible());
    m_page->hide();
    m_page->finishCheck(true);
    QCOMPARE(m_page->problemText(), QString("ID_lumcamera_NoWebcamFound"));
}

void tst_CameraPageDevices::camerasAreOrderedById()
{
    m_engine->cameras().plug({"b", "Alpha"}, DeviceState::Working);
    m_engine->cameras().plug({"a", "Zulu"}, DeviceState::Working);
    makePage();
    QCOMPARE(
        entries(*m_combo),
        (QStringList{"Zulu=a", "Alpha=b", NoCameraText + '=' + HardwareMgrInterface::NoneDevice}));
    QCOMPARE(m_combo->currentText(), QString("Alpha")); // plugged in first, so the current one
}

void tst_CameraPageDevices::refillCallsInOrder()
{
    makePage();
    m_engine->clearCalls();
    plugCamera(Camera::Picture);
    QTRY_COMPARE(m_combo->count(), 2);
    QCoreApplication::processEvents();
    QCOMPARE(m_engine->calls(), (QStringList{"camera.devices()", "camera.state()",
                                             "camera.delivers()", "camera.currentId()"}));
}

void tst_CameraPageDevices::deviceChangeCallsInOrder()
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

void tst_CameraPageDevices::changesFromOutsideChooseNothing()
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

void tst_CameraPageDevices::userChooses()
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

void tst_CameraPageDevices::userTurnsTheCameraOff()
{
    makeShownPage(Camera::Picture);
    m_engine->clearCalls();
    m_combo->setCurrentIndex(1);
    QCOMPARE(m_engine->commands(), QStringList{"camera.setCurrent()"});
    QTRY_VERIFY(m_canSee->isHidden());
    QCOMPARE(m_combo->currentText(), NoCameraText);
    QVERIFY(isBalloonVisible());
}

void tst_CameraPageDevices::wheelAndArrowsChooseNothing()
{
    m_engine->cameras().plug({"b", "Second"}, DeviceState::Working);
    makeShownPage(Camera::Picture);
    m_engine->clearCalls();
    DevicePageTools::ignoresWheelAndArrows(m_combo);
    QCOMPARE(m_engine->commands(), QStringList());
}

void tst_CameraPageDevices::choiceFollowsTheEngine()
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

void tst_CameraPageDevices::unknownCameraLeavesNoSelection()
{
    m_engine->cameras().plug({"b", "Second"}, DeviceState::Working);
    plugCamera(Camera::Picture);
    m_engine->cameras().unplug("b");
    makePage();
    QCOMPARE(m_combo->currentIndex(), -1);
    QCOMPARE(m_combo->currentText(), QString());
    QCOMPARE(m_combo->count(), 2);
}

void tst_CameraPageDevices::refillClosesThePopup()
{
    makeShownPage(Camera::Picture);
    m_combo->showPopup();
    QVERIFY(m_combo->view()->isVisible());
    m_engine->cameras().plug({"b", "Second"});
    QTRY_VERIFY(!m_combo->view()->isVisible());
}

void tst_CameraPageDevices::hostileNamesStayLiteral()
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

void tst_CameraPageDevices::balloonStandsAboveTheComboBox()
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

void tst_CameraPageDevices::balloonLook()
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

void tst_CameraPageDevices::balloonNeedsAVisiblePage()
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

void tst_CameraPageDevices::balloonIsMadeOnce()
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

void tst_CameraPageDevices::balloonGoesWithTheLastCamera()
{
    makeShownPage(Camera::Denied);
    QVERIFY(isBalloonVisible());
    m_engine->cameras().unplug("a");
    QTRY_VERIFY(!isBalloonVisible());
    QVERIFY(m_canSee->isHidden());
    QVERIFY(m_cant->isEnabled());
}

void tst_CameraPageDevices::balloonGoesBeforeTheCamera()
{
    makeShownPage(Camera::Denied);
    int sessions = -1;
    connect(disabledBalloon(), &QObject::destroyed, this,
            [this, &sessions] { sessions = m_engine->livingSessions(); });
    m_page.reset();
    QCOMPARE(sessions, 1);
    QCOMPARE(m_engine->calls().last(), QString("camera.destroy()"));
}

QTEST_MAIN(tst_CameraPageDevices)
#include "tst_CameraPageDevices.moc"
