// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/LayoutInspector.h"

#include <QLabel>
#include <QPushButton>
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
    void faintTitle();

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

void tst_LayoutInspector::faintTitle()
{
    auto* title = label("title", {0, 0, 100, 30});
    title->setObjectName("titleLabel");
    QCOMPARE(inspect(), QStringList());
    title->setStyleSheet("color:#999999");
    QCOMPARE(inspect().filter("faint").size(), 1);
}

QTEST_MAIN(tst_LayoutInspector)
#include "tst_LayoutInspector.moc"
