// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/CheckResultPage.h"

#include "tests/support/PageTools.h"

#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

namespace {

constexpr int RowCount = 4;
constexpr int ColumnCount = 3;
const QString RowNames[RowCount] = {"ID_CheckResultPage_System", "ID_Camera_Check",
                                    "ID_CheckResultPage_Headphone", "ID_Microphone_Check"};

class FakePage : public CheckPage
{
public:
    bool isPassed() const override
    {
        ++asked;
        return passed;
    }
    void saveResult() override { ++saved; }
    std::vector<QString> problemList() const override { return problems; }

    bool passed = true;
    std::vector<QString> problems;
    mutable int asked = 0;
    int saved = 0;
};

const QString GreenStyle = "font-size: 12px; color: #009265;";
const QString RedStyle = "font-size: 12px; color: #ff4a27;";
const QString NameStyle = "font-size: 12px; color: #232323;";
const Qt::Alignment Left = Qt::AlignLeft | Qt::AlignVCenter;
const Qt::Alignment Right = Qt::AlignRight | Qt::AlignVCenter;

} // namespace

class tst_CheckResultPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void allPassed();
    void oneFailed_data();
    void oneFailed();
    void failedWithoutProblems();
    void summaryStopsAtTheFirstFailure();
    void showingTwiceLeaksNoLabel();
    void newVerdictsAfterRedetect();
    void buttonsRecordTheChoice();
    void problemLinesAreShownAsQtShowsThem();
    void recordsNothing();
    void tableSetup();
    void formGeometry_data();
    void formGeometry();
    void formStyleSheets_data();
    void formStyleSheets();
    void formTexts();
    void formTable();
    void iconsShowTheirPictures();
    void metaObjectHasTheTwoSlots();

private:
    QLabel* cell(int row, int column) const;
    void checkRow(int row, bool passed, const QString& details) const;
    void checkSummary(bool passed) const;

    FakePage m_pages[RowCount];
    std::unique_ptr<CheckResultPage> m_page;
    QTableWidget* m_table = nullptr;
};

void tst_CheckResultPage::init()
{
    for (FakePage& page : m_pages) {
        page.passed = true;
        page.problems.clear();
        page.asked = 0;
        page.saved = 0;
    }
    m_page = std::make_unique<CheckResultPage>();
    m_page->setPages(&m_pages[0], &m_pages[1], &m_pages[2], &m_pages[3]);
    m_table = childOf<QTableWidget>(*m_page, "tableWidget");
}

void tst_CheckResultPage::cleanup()
{
    m_page.reset();
}

QLabel* tst_CheckResultPage::cell(int row, int column) const
{
    return qobject_cast<QLabel*>(m_table->cellWidget(row, column));
}

void tst_CheckResultPage::checkRow(int row, bool passed, const QString& details) const
{
    for (int column = 0; column < ColumnCount; ++column) {
        QVERIFY(cell(row, column));
    }
    QCOMPARE(cell(row, 0)->text(), RowNames[row]);
    QCOMPARE(cell(row, 0)->styleSheet(), NameStyle);
    QCOMPARE(cell(row, 0)->alignment(), Left);
    QCOMPARE(cell(row, 1)->text(), details);
    QCOMPARE(cell(row, 1)->styleSheet(), passed ? GreenStyle : RedStyle);
    QCOMPARE(cell(row, 1)->alignment(), Left);
    QCOMPARE(cell(row, 2)->text(),
             QString(passed ? "ID_CheckResultPage_Normal" : "ID_CheckResultPage_Abnormal"));
    QCOMPARE(cell(row, 2)->styleSheet(), passed ? GreenStyle : RedStyle);
    QCOMPARE(cell(row, 2)->alignment(), Right);
}

void tst_CheckResultPage::checkSummary(bool passed) const
{
    QCOMPARE(childOf<QPushButton>(*m_page, "okButton")->isVisible(), passed);
    QCOMPARE(childOf<QLabel>(*m_page, "lb_IconR")->isVisible(), passed);
    QCOMPARE(childOf<QPushButton>(*m_page, "redetectButton")->isVisible(), !passed);
    QCOMPARE(childOf<QLabel>(*m_page, "lb_IconW")->isVisible(), !passed);
    QCOMPARE(childOf<QLabel>(*m_page, "lb_Device")->text(),
             QString(passed ? "ID_CheckResultPage_EquipmentNormal"
                            : "ID_CheckResultPage_EquipmentAbnormal"));
    QCOMPARE(
        childOf<QLabel>(*m_page, "lb_DeviceTip")->text(),
        QString(passed ? "ID_CheckResultPage_OK" : "ID_CheckResultPage_CheckEquipmentAndRetest"));
}

void tst_CheckResultPage::allPassed()
{
    m_pages[2].problems = {"a line that a passed page doesn't show"};
    m_page->show();
    for (int row = 0; row < RowCount; ++row) {
        checkRow(row, true, QString());
    }
    checkSummary(true);
}

void tst_CheckResultPage::oneFailed_data()
{
    QTest::addColumn<int>("failed");
    QTest::newRow("system") << 0;
    QTest::newRow("camera") << 1;
    QTest::newRow("headphone") << 2;
    QTest::newRow("microphone") << 3;
}

void tst_CheckResultPage::oneFailed()
{
    QFETCH(int, failed);
    m_pages[failed].passed = false;
    m_pages[failed].problems = {"first line", "second line"};
    m_page->show();
    for (int row = 0; row < RowCount; ++row) {
        checkRow(row, row != failed,
                 row == failed ? QString("first line\nsecond line") : QString());
    }
    checkSummary(false);
}

void tst_CheckResultPage::failedWithoutProblems()
{
    m_pages[1].passed = false;
    m_page->show();
    checkRow(1, false, QString());
    checkSummary(false);
}

void tst_CheckResultPage::summaryStopsAtTheFirstFailure()
{
    m_page->show();
    for (const FakePage& page : m_pages) {
        QCOMPARE(page.asked, 2);
    }
    m_page->hide();
    m_pages[1].passed = false;
    m_page->show();
    QCOMPARE(m_pages[0].asked, 4);
    QCOMPARE(m_pages[1].asked, 4);
    QCOMPARE(m_pages[2].asked, 3);
    QCOMPARE(m_pages[3].asked, 3);
}

void tst_CheckResultPage::showingTwiceLeaksNoLabel()
{
    m_pages[3].passed = false;
    m_pages[3].problems = {"a problem"};
    m_page->show();
    QList<QPointer<QLabel>> firstLabels;
    for (int row = 0; row < RowCount; ++row) {
        for (int column = 0; column < ColumnCount; ++column) {
            firstLabels.append(cell(row, column));
        }
    }
    const int labels = m_page->findChildren<QLabel*>().size();
    m_page->hide();
    m_page->show();
    for (int row = 0; row < RowCount; ++row) {
        checkRow(row, row != 3, row == 3 ? QString("a problem") : QString());
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const QPointer<QLabel>& label : firstLabels) {
        QVERIFY(!label);
    }
    QCOMPARE(m_page->findChildren<QLabel*>().size(), labels);
}

void tst_CheckResultPage::newVerdictsAfterRedetect()
{
    m_pages[0].passed = false;
    m_page->show();
    checkSummary(false);
    m_page->hide();
    m_pages[0].passed = true;
    m_page->show();
    checkRow(0, true, QString());
    checkSummary(true);
}

void tst_CheckResultPage::buttonsRecordTheChoice()
{
    QSignalSpy complete(m_page.get(), &CheckPage::complete);
    QVERIFY(!m_page->isRedetect());
    m_pages[0].passed = false;
    m_page->show();
    QTest::mouseClick(childOf<QPushButton>(*m_page, "redetectButton"), Qt::LeftButton);
    QVERIFY(m_page->isRedetect());
    QCOMPARE(complete.count(), 1);

    m_page->hide();
    m_pages[0].passed = true;
    m_page->show();
    QVERIFY(m_page->isRedetect()); // kept until the next press
    QTest::mouseClick(childOf<QPushButton>(*m_page, "okButton"), Qt::LeftButton);
    QVERIFY(!m_page->isRedetect());
    QCOMPARE(complete.count(), 2);
    QVERIFY(!m_page->isTested()); // the answer fields aren't used
}

void tst_CheckResultPage::problemLinesAreShownAsQtShowsThem()
{
    m_pages[0].passed = false;
    m_pages[0].problems = {"<b>bold</b> &lt;"};
    m_page->show();
    QCOMPARE(cell(0, 1)->text(), m_pages[0].problems.front());
    for (int column = 0; column < ColumnCount; ++column) {
        QCOMPARE(cell(0, column)->textFormat(), Qt::AutoText);
    }
}

void tst_CheckResultPage::recordsNothing()
{
    m_page->show();
    QTest::mouseClick(childOf<QPushButton>(*m_page, "okButton"), Qt::LeftButton);
    m_page->hide();
    for (const FakePage& page : m_pages) {
        QCOMPARE(page.saved, 0);
    }
}

void tst_CheckResultPage::tableSetup()
{
    m_page->show();
    QCOMPARE(m_table->editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(m_table->selectionMode(), QAbstractItemView::NoSelection);
    QCOMPARE(m_table->focusPolicy(), Qt::NoFocus);
    QVERIFY(m_table->horizontalScrollBar()->isHidden());
    QVERIFY(m_table->verticalScrollBar()->isHidden());
    QCOMPARE(m_table->columnWidth(0), 82);
    QCOMPARE(m_table->columnWidth(1), 238);
    QCOMPARE(m_table->columnWidth(2), 80);
    for (int row = 0; row < RowCount; ++row) {
        QCOMPARE(m_table->rowHeight(row), 40);
        QTRY_COMPARE(cell(row, 0)->height(), 40);
    }
}

void tst_CheckResultPage::formGeometry_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<QSize>("minimum");
    QTest::addColumn<QSize>("maximum");
    const auto fixed = [](const char* name, const char* className, const QRect& geometry) {
        QTest::newRow(name) << name << className << geometry << geometry.size() << geometry.size();
    };
    fixed("tableWidget", "QTableWidget", {105, 120, 405, 280});
    fixed("lb_DeviceTip", "QLabel", {153, 56, 270, 17});
    fixed("lb_IconW", "QLabel", {105, 33, 36, 36});
    fixed("lb_IconR", "QLabel", {105, 33, 36, 36});
    fixed("redetectButton", "QPushButton", {434, 36, 88, 32});
    fixed("okButton", "QPushButton", {434, 36, 88, 32});
    fixed("frame", "QFrame", {105, 93, 405, 1});
    QTest::newRow("lb_Device") << "lb_Device"
                               << "QLabel" << QRect(153, 33, 270, 25) << QSize(270, 25)
                               << QSize(270, QWIDGETSIZE_MAX);
}

void tst_CheckResultPage::formGeometry()
{
    QFETCH(QString, name);
    QFETCH(QString, className);
    const auto* widget = childOf<QWidget>(*m_page, name.toLatin1());
    QCOMPARE(QString(widget->metaObject()->className()), className);
    QCOMPARE(widget->parentWidget(), m_page.get());
    QTEST(widget->geometry(), "geometry");
    QTEST(widget->minimumSize(), "minimum");
    QTEST(widget->maximumSize(), "maximum");
}

void tst_CheckResultPage::formStyleSheets_data()
{
    QTest::addColumn<QString>("styleSheet");
    QTest::newRow("tableWidget")
        << "QTableWidget {\n\tbackground-color: \"white\";\n}\n\nQTableWidget::item "
           "{\n\tbackground-color: \"white\";\n\tcolor: red;\n}";
    QTest::newRow("lb_Device") << "color: black;";
    QTest::newRow("lb_DeviceTip") << "color: rgb(180, 180, 180);";
    QTest::newRow("lb_IconW") << "image: url(:/Kestrel/Images/Warning.svg);";
    QTest::newRow("lb_IconR") << "image: url(:/Kestrel/Images/CheckOk.svg);";
    QTest::newRow("frame") << "background-color: #E7E8EA;";
    const QString button =
        "QPushButton\n{\n  border-radius: %1px;  \n  font-size: 14px;\n  background-color: "
        "#009265;\n  color: white;\n}\n\nQPushButton:hover\n{\n  background-color: #0C8962;\n  "
        "color: white;\n}\nQPushButton:disabled\n{\n\tbackground-color: #00835A;\n\tcolor: "
        "white;\n  \tborder: none;\n}";
    QTest::newRow("redetectButton") << button.arg(4);
    QTest::newRow("okButton") << button.arg(3);
}

void tst_CheckResultPage::formStyleSheets()
{
    QTEST(childOf<QWidget>(*m_page, QTest::currentDataTag())->styleSheet(), "styleSheet");
    QCOMPARE(m_page->styleSheet(),
             QString("QWidget#CheckResultPage\n{\n\tbackground-color: white;\n\tcolor: rgb(35, 35, "
                     "35);\n}\n\nQWidget QTableWidget\n{\n\tbackground-color: white;\n\tcolor: "
                     "rgb(35, 35, 35);\n}\n"));
}

void tst_CheckResultPage::formTexts()
{
    QCOMPARE(m_page->objectName(), QString("CheckResultPage"));
    QCOMPARE(m_page->windowTitle(), QString("Form"));
    QCOMPARE(m_page->size(), QSize(640, 419));
    QCOMPARE(childOf<QLabel>(*m_page, "lb_Device")->text(), QString("The equipment is normal"));
    QCOMPARE(childOf<QLabel>(*m_page, "lb_DeviceTip")->text(),
             QString("The test is completed and runs well"));
    QCOMPARE(childOf<QLabel>(*m_page, "lb_Device")->font().pointSize(), 14);
    QVERIFY(!childOf<QLabel>(*m_page, "lb_DeviceTip")->testAttribute(Qt::WA_SetFont));
    QCOMPARE(childOf<QPushButton>(*m_page, "redetectButton")->text(),
             QString("ID_CheckResultPage_Redetect"));
    QCOMPARE(childOf<QPushButton>(*m_page, "okButton")->text(), QString("ID_OK"));
}

void tst_CheckResultPage::formTable()
{
    QCOMPARE(m_table->font().pointSize(), 10);
    QCOMPARE(m_table->frameShape(), QFrame::NoFrame);
    QCOMPARE(m_table->frameShadow(), QFrame::Plain);
    QCOMPARE(m_table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(m_table->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(m_table->sizeAdjustPolicy(), QAbstractScrollArea::AdjustToContents);
    QVERIFY(!m_table->hasAutoScroll());
    QVERIFY(!m_table->tabKeyNavigation());
    QVERIFY(!m_table->showGrid());
    QCOMPARE(m_table->gridStyle(), Qt::NoPen);
    QVERIFY(!m_table->wordWrap());
    QVERIFY(!m_table->isCornerButtonEnabled());
    QCOMPARE(m_table->rowCount(), RowCount);
    QCOMPARE(m_table->columnCount(), ColumnCount);
    QVERIFY(m_table->horizontalHeader()->isHidden());
    QVERIFY(m_table->verticalHeader()->isHidden());
    QVERIFY(!m_table->horizontalHeader()->highlightSections());
    QVERIFY(!m_table->verticalHeader()->highlightSections());
    QCOMPARE(m_table->verticalHeader()->defaultSectionSize(), 60);
    const QStringList headers = {"Item", "Result", "Details"};
    for (int column = 0; column < ColumnCount; ++column) {
        QCOMPARE(m_table->horizontalHeaderItem(column)->text(), headers.at(column));
    }
    for (int row = 0; row < RowCount; ++row) {
        QCOMPARE(m_table->verticalHeaderItem(row)->text(), QString::number(row));
        QVERIFY(m_table->item(row, 0));
        QVERIFY(!m_table->item(row, 1));
        QVERIFY(m_table->item(row, 2));
    }
}

void tst_CheckResultPage::iconsShowTheirPictures()
{
    m_page->show();
    QImage shown = childOf<QLabel>(*m_page, "lb_IconR")->grab().toImage();
    QVERIFY(shown.pixelColor(18, 30) != shown.pixelColor(0, 0));
    m_page->hide();
    m_pages[0].passed = false;
    m_page->show();
    shown = childOf<QLabel>(*m_page, "lb_IconW")->grab().toImage();
    QVERIFY(shown.pixelColor(10, 30) != shown.pixelColor(0, 0));
}

void tst_CheckResultPage::metaObjectHasTheTwoSlots()
{
    QCOMPARE(CheckResultPage::staticMetaObject.className(), "CheckResultPage");
    QCOMPARE(ownMethods(CheckResultPage::staticMetaObject),
             (QList<QByteArray>{"on_okButton_clicked()", "on_redetectButton_clicked()"}));
}

QTEST_MAIN(tst_CheckResultPage)
#include "tst_CheckResultPage.moc"
