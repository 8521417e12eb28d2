// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/CameraPageTest.h"
#include "tests/support/DevicePageTools.h"
#include "widgets/TipsWidget.h"

#include <CommEngine/PlayerContainer.h>

using Platform::DeviceState;
using TestSupport::CameraPageTest;

namespace {

const QColor EmptyPreview(242, 242, 242);

} // namespace

// The page as it is built, shown and hidden: calls, texts, the preview, the form.
class tst_CameraPage : public CameraPageTest
{
    Q_OBJECT

private Q_SLOTS:
    void constructionCallsInOrder_data();
    void constructionCallsInOrder();
    void constructionTexts();
    void tipsAreAppended();
    void comboBoxSetup();
    void showCallsInOrder();
    void hideCallsInOrder();

    void stateOnScreen_data();
    void stateOnScreen();
    void previewPlaysAndStops();

    void formGeometry_data();
    void formGeometry();
    void formStyleSheets_data();
    void formStyleSheets();
    void formDetails();
    void metaObjectHasTheOneSlot();
};

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
