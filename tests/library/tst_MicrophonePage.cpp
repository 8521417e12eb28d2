// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/MicrophonePageTest.h"
#include "tests/support/DevicePageTools.h"
#include "tests/support/Dictionary.h"
#include "widgets/TipsWidget.h"

#include <LumUtility/LumColor.h>

#include <QProgressBar>
#include <QSlider>
#include <QStackedLayout>

using Platform::DeviceState;
using TestSupport::MicrophonePageTest;

namespace {

constexpr int HandIntervalMs = 300;

} // namespace

// The page as it is built, shown and hidden: calls, texts, the pulsing hand, the form.
class tst_MicrophonePage : public MicrophonePageTest
{
    Q_OBJECT

private Q_SLOTS:
    void constructionCallsInOrder_data();
    void constructionCallsInOrder();
    void texts();
    void captionFromTheRightLeavesRoomForTheFocus();
    void tipsStandBeforeTheLastItem();
    void comboBoxSetup();
    void levelBars();
    void showCallsInOrder_data();
    void showCallsInOrder();
    void hideCallsInOrder_data();
    void hideCallsInOrder();

    void handPulses();
    void handIsTheProcesss();
    void handPlace();

    void destructionInTheMiddle();
    void formSizes_data();
    void formSizes();
    void formStyleSheets_data();
    void formStyleSheets();
    void formDetails();
    void metaObjectHasTheTwoSlots();
};

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
