// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/library/HeadsetPageTest.h"
#include "tests/support/DevicePageTools.h"
#include "widgets/TipsWidget.h"

#include <QSlider>

using TestSupport::HeadsetPageTest;

namespace {

constexpr int HandIntervalMs = 300;

} // namespace

// The page as it is built: calls, texts, the pulsing hand, the form.
class tst_HeadsetPage : public HeadsetPageTest
{
    Q_OBJECT

private Q_SLOTS:
    void constructionCallsInOrder_data();
    void constructionCallsInOrder();
    void texts();
    void answerButtonsAtStart();
    void tipsStandBeforeTheLastItem();
    void comboBoxSetup();
    void playButtonImages();

    void handPulsesUntilTheFirstPlay();
    void handComesBackWithTheNextShow();
    void handIsTheProcesss();
    void handPlace();

    void formGeometry_data();
    void formGeometry();
    void formStyleSheets_data();
    void formStyleSheets();
    void formDetails();
    void metaObjectHasTheThreeSlots();

private:
    QLabel* hand();
};

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
