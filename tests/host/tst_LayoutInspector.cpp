// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/LayoutInspector.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QtTest>

class tst_LayoutInspector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { delete m_window; }

    void readableTextsAreNoProblem();
    void wideTextIsCutOff();
    void highTextIsCutOff();
    void wideButtonIsCutOff();
    void textsOnTopOfOneAnother();
    void hiddenTextsDontCount();
    void textOutsideItsWindowIsCutOff();
    void longEntryIsNotCutOff();
    void controlOnTopOfAnother_data();
    void controlOnTopOfAnother();
    void faintText_data();
    void faintText();
    void faintEntryAndRow();
    void disabledTextMayBeFaint();
    void windowLargerThanItsScreen();
    void focusThatShows();
    void faintFocus_data();
    void faintFocus();
    void focusComesBack();
    void popupFarFromItsAnchor_data();
    void popupFarFromItsAnchor();

private:
    QLabel* label(const QString& text, const QRect& place);
    QStringList inspect() const;

    QWidget* m_window = nullptr;
};

void tst_LayoutInspector::init()
{
    m_window = new QWidget;
    m_window->setStyleSheet("background:white;color:#232323");
    m_window->resize(300, 200);
}

QLabel* tst_LayoutInspector::label(const QString& text, const QRect& place)
{
    auto* result = new QLabel(text, m_window);
    result->setGeometry(place);
    return result;
}

QStringList tst_LayoutInspector::inspect() const
{
    m_window->show();
    return LayoutInspector::inspect(m_window);
}

void tst_LayoutInspector::readableTextsAreNoProblem()
{
    label("one", {0, 0, 100, 30});
    label("two\nlines", {0, 40, 100, 60});
    auto* wrapped = label("a text of several words that wraps", {0, 100, 100, 100});
    wrapped->setWordWrap(true);
    QCOMPARE(inspect(), QStringList());
}

void tst_LayoutInspector::wideTextIsCutOff()
{
    label("far too wide for its place", {0, 0, 40, 30});
    QCOMPARE(inspect().size(), 1);
    QVERIFY(inspect().first().startsWith("cut off: QLabel \"far too wide"));
}

void tst_LayoutInspector::highTextIsCutOff()
{
    label("one\ntwo\nthree\nfour", {0, 0, 100, 30});
    QCOMPARE(inspect().filter("cut off").size(), 1);
}

void tst_LayoutInspector::wideButtonIsCutOff()
{
    auto* button = new QPushButton("far too wide for its place", m_window);
    button->setGeometry(0, 0, 60, 30);
    QCOMPARE(inspect().filter("cut off").size(), 1);
}

void tst_LayoutInspector::textsOnTopOfOneAnother()
{
    label("the one text", {0, 0, 150, 30});
    label("the other text", {20, 5, 150, 30});
    QCOMPARE(inspect().filter("overlap").size(), 1);
}

void tst_LayoutInspector::hiddenTextsDontCount()
{
    label("the one text", {0, 0, 150, 30});
    label("the other text", {20, 5, 150, 30})->hide();
    label("far too wide for its place", {0, 100, 40, 30})->hide();
    QCOMPARE(inspect(), QStringList());
}

void tst_LayoutInspector::textOutsideItsWindowIsCutOff()
{
    label("half of it is outside", {250, 0, 200, 30});
    QCOMPARE(inspect().filter("cut off").size(), 1);
}

void tst_LayoutInspector::longEntryIsNotCutOff()
{
    auto* edit = new QLineEdit("far too wide for its place", m_window);
    edit->setGeometry(0, 0, 60, 30);
    QCOMPARE(inspect(), QStringList());
}

void tst_LayoutInspector::controlOnTopOfAnother_data()
{
    QTest::addColumn<QRect>("place");
    QTest::addColumn<int>("problems");
    QTest::newRow("beside it") << QRect(0, 100, 100, 30) << 0;
    QTest::newRow("on it") << QRect(50, 10, 100, 30) << 1;
}

void tst_LayoutInspector::controlOnTopOfAnother()
{
    QFETCH(QRect, place);
    (new QComboBox(m_window))->setGeometry(0, 0, 100, 30);
    (new QSlider(Qt::Horizontal, m_window))->setGeometry(place);
    QTEST(inspect().filter("overlap").size(), "problems");
}

void tst_LayoutInspector::faintText_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<int>("problems");
    QTest::newRow("4.54:1") << "#767676" << 0;
    QTest::newRow("4.48:1") << "#777777" << 1;
    QTest::newRow("2.85:1, as the pages fix it") << "#999999" << 0;
    QTest::newRow("2.85:1 on another ground") << "#999999;background:#FFFEF0" << 1;
    QTest::newRow("not to be seen") << "#FFFFFF" << 1;
}

void tst_LayoutInspector::faintText()
{
    QFETCH(QString, color);
    label("a text", {0, 0, 100, 30})->setStyleSheet("color:" + color);
    QTEST(inspect().filter("faint").size(), "problems");
    auto* button = new QPushButton("a button", m_window);
    button->setGeometry(0, 50, 100, 30);
    button->setStyleSheet("border:none;color:" + color);
    QCOMPARE(inspect().filter("faint: QPushButton").size(), inspect().filter("faint").size() / 2);
}

void tst_LayoutInspector::faintEntryAndRow()
{
    auto* edit = new QLineEdit("an entry", m_window);
    edit->setGeometry(0, 0, 100, 30);
    auto* rows = new QListWidget(m_window);
    rows->setGeometry(0, 50, 100, 100);
    rows->addItems({"one", "two"});
    QCOMPARE(inspect(), QStringList());
    edit->setStyleSheet("color:#EEEEEE");
    rows->setStyleSheet("color:#EEEEEE");
    QCOMPARE(inspect().filter("faint: QLineEdit").size(), 1);
    QCOMPARE(inspect().filter("faint: QListWidget").size(), 2);
}

void tst_LayoutInspector::disabledTextMayBeFaint()
{
    QLabel* text = label("a text", {0, 0, 100, 30});
    text->setStyleSheet("color:#AAAAAA");
    QCOMPARE(inspect().size(), 1);
    text->setEnabled(false);
    QCOMPARE(inspect(), QStringList());
}

void tst_LayoutInspector::windowLargerThanItsScreen()
{
    QCOMPARE(inspect(), QStringList());
    const QSize screen = m_window->screen()->size();
    for (const QSize size : {QSize(screen.width() + 1, 200), QSize(300, screen.height() + 1)}) {
        m_window->resize(size);
        QCOMPARE(inspect().filter("too large").size(), 1);
    }
}

void tst_LayoutInspector::focusThatShows()
{
    auto* button = new QPushButton("one", m_window);
    button->setGeometry(0, 0, 100, 30);
    button->setStyleSheet("QPushButton{border:none}QPushButton:focus{border:2px solid #232323}");
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    QCOMPARE(LayoutInspector::inspectFocus(m_window), QStringList());
}

void tst_LayoutInspector::faintFocus_data()
{
    QTest::addColumn<QString>("style");
    QTest::newRow("none") << "QPushButton{border:none}";
    QTest::newRow("faint") << "QPushButton{border:none}QPushButton:focus{border:2px solid #CCCCCC}";
    QTest::newRow("a dot") << "QPushButton{border:none}"
                              "QPushButton:focus{border-left:1px solid #232323}";
}

void tst_LayoutInspector::faintFocus()
{
    QFETCH(QString, style);
    auto* button = new QPushButton(m_window);
    button->setObjectName("faintButton");
    button->setGeometry(0, 0, 100, 3);
    button->setStyleSheet(style);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    const QStringList problems = LayoutInspector::inspectFocus(m_window);
    QCOMPARE(problems.size(), 1);
    QVERIFY(problems.first().startsWith("faint focus: faintButton"));
}

void tst_LayoutInspector::focusComesBack()
{
    auto* first = new QPushButton("one", m_window);
    auto* second = new QPushButton("two", m_window);
    second->move(0, 100);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    first->setFocus();
    LayoutInspector::inspectFocus(m_window);
    QVERIFY(first->hasFocus());
    QVERIFY(!second->hasFocus());
}

void tst_LayoutInspector::popupFarFromItsAnchor_data()
{
    QTest::addColumn<QRect>("popup");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("problems");
    QTest::newRow("below") << QRect(100, 120, 200, 90) << 1.0 << 0;
    QTest::newRow("12 pixels below") << QRect(100, 131, 200, 90) << 1.0 << 0;
    QTest::newRow("13 pixels below") << QRect(100, 132, 200, 90) << 1.0 << 1;
    QTest::newRow("13 pixels above") << QRect(100, -2, 200, 90) << 1.0 << 1;
    QTest::newRow("13 pixels to the left") << QRect(-12, 100, 100, 20) << 1.0 << 1;
    QTest::newRow("13 pixels to the right") << QRect(312, 100, 100, 20) << 1.0 << 1;
    QTest::newRow("13 pixels of a sharp screen") << QRect(100, 132, 200, 90) << 2.0 << 0;
    QTest::newRow("25 pixels of a sharp screen") << QRect(100, 144, 200, 90) << 2.0 << 1;
}

void tst_LayoutInspector::popupFarFromItsAnchor()
{
    QFETCH(QRect, popup);
    QFETCH(double, scale);
    const QRect anchor(100, 100, 200, 20);
    QTEST(LayoutInspector::inspectPopup(popup, anchor, scale).filter("far").size(), "problems");
}

QTEST_MAIN(tst_LayoutInspector)
#include "tst_LayoutInspector.moc"
