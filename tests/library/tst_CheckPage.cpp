// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "wizard/CheckPage.h"

#include "tests/support/TimerTools.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

namespace {

class ProblemPage : public CheckPage
{
public:
    std::vector<QString> problemList() const override { return problems; }
    void updateDeviceState() override { ++updates; }
    bool isConfirmed() const { return m_userConfirmed; }

    std::vector<QString> problems;
    int updates = 0;
};

} // namespace

class tst_CheckPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filterSwallowsKeys_data();
    void filterSwallowsKeys();
    void filterSwallowsWheel();
    void problemTextJoinsLines();
    void barePageHasNoVerdict();
    void finishCheckStoresTheAnswer();
    void answeringAgainOverwrites();
    void resetMakesUntested();
    void blinkAlternatesTheGreens();
    void foreignTimersChangeNothing();
    void noBlinkButtonNoTimer();
    void selectComboDataOnEmptyBox();
    void selectComboDataFindsExactly();
    void selectComboDataWithoutMatchClears();
    void hidingUpdatesTheDeviceState();
    void metaObjectHasOneSignal();
};

void tst_CheckPage::filterSwallowsKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("isSwallowed");
    QTest::newRow("Up") << Qt::Key_Up << true;
    QTest::newRow("Down") << Qt::Key_Down << true;
    QTest::newRow("Left") << Qt::Key_Left << false;
    QTest::newRow("Right") << Qt::Key_Right << false;
    QTest::newRow("PageUp") << Qt::Key_PageUp << false;
    QTest::newRow("PageDown") << Qt::Key_PageDown << false;
    QTest::newRow("Home") << Qt::Key_Home << false;
    QTest::newRow("End") << Qt::Key_End << false;
    QTest::newRow("letter") << Qt::Key_B << false;
    QTest::newRow("Return") << Qt::Key_Return << false;
    QTest::newRow("Enter") << Qt::Key_Enter << false;
}

void tst_CheckPage::filterSwallowsKeys()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, isSwallowed);
    CheckPage page;
    QComboBox combo;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCOMPARE(page.eventFilter(&combo, &press), isSwallowed);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QVERIFY(!page.eventFilter(&combo, &release));
}

void tst_CheckPage::filterSwallowsWheel()
{
    CheckPage page;
    QComboBox combo;
    combo.addItems({"a", "b", "c"});
    combo.setCurrentIndex(1);
    combo.installEventFilter(&page);
    for (const int delta : {120, -120}) {
        QWheelEvent wheel(QPointF(1, 1), QPointF(1, 1), QPoint(), QPoint(0, delta), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&combo, &wheel);
        QCOMPARE(combo.currentIndex(), 1);
    }
    QTest::keyClick(&combo, Qt::Key_Down);
    QCOMPARE(combo.currentIndex(), 1);
    QTest::keyClick(&combo, Qt::Key_End);
    QCOMPARE(combo.currentIndex(), 2);
}

void tst_CheckPage::problemTextJoinsLines()
{
    ProblemPage page;
    QCOMPARE(page.problemText(), QString());
    page.problems = {"one"};
    QCOMPARE(page.problemText(), QString("one"));
    page.problems = {"one", "two", "three"};
    QCOMPARE(page.problemText(), QString("one\ntwo\nthree"));
}

void tst_CheckPage::barePageHasNoVerdict()
{
    CheckPage page;
    QVERIFY(!page.isTested());
    QVERIFY(!page.isPassed());
    QVERIFY(page.problemList().empty());
    page.saveResult();
    page.updateDeviceState();
    QVERIFY(!page.isTested());
}

void tst_CheckPage::finishCheckStoresTheAnswer()
{
    ProblemPage page;
    bool wasStoredFirst = false;
    connect(&page, &CheckPage::complete, &page,
            [&] { wasStoredFirst = page.isTested() && page.isConfirmed(); });
    page.finishCheck(true);
    QVERIFY(wasStoredFirst);

    ProblemPage other;
    QSignalSpy complete(&other, &CheckPage::complete);
    other.finishCheck(false);
    QVERIFY(other.isTested());
    QVERIFY(!other.isConfirmed());
    QVERIFY(!other.isPassed());
    QCOMPARE(complete.count(), 1);
}

void tst_CheckPage::answeringAgainOverwrites()
{
    ProblemPage page;
    QSignalSpy complete(&page, &CheckPage::complete);
    page.finishCheck(true);
    QVERIFY(page.isConfirmed());
    page.finishCheck(false);
    QVERIFY(page.isTested());
    QVERIFY(!page.isConfirmed());
    QCOMPARE(complete.count(), 2);
}

void tst_CheckPage::resetMakesUntested()
{
    ProblemPage page;
    page.finishCheck(true);
    page.reset();
    QVERIFY(!page.isTested());
    QVERIFY(!page.isConfirmed());
}

void tst_CheckPage::blinkAlternatesTheGreens()
{
    CheckPage page;
    QToolButton button;
    page.setBlinkButton(&button);
    const auto timers = timersOf(&page);
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.first().interval, 400);
    QCOMPARE(timers.first().timerType, Qt::CoarseTimer);
    const QString style =
        "QToolButton{border-radius: 2px;min-width: 110px;min-height: 24px;max-width: "
        "110px;max-height: 24px;color: #fff;background-color:%1;}"
        "QLabel{font-size: 12px; color: white; background-color:%1;}";
    tick(&page, timers.first().timerId);
    QCOMPARE(button.styleSheet(), style.arg("#30ba78"));
    tick(&page, timers.first().timerId);
    QCOMPARE(button.styleSheet(), style.arg("#009265"));
    tick(&page, timers.first().timerId);
    QCOMPARE(button.styleSheet(), style.arg("#30ba78"));

    // Another button takes over the only timer, and the count goes on.
    QToolButton next;
    page.setBlinkButton(&next);
    QCOMPARE(timersOf(&page).size(), 1);
    tick(&page, timersOf(&page).first().timerId);
    QCOMPARE(next.styleSheet(), style.arg("#009265"));
    QCOMPARE(button.styleSheet(), style.arg("#30ba78"));
}

void tst_CheckPage::foreignTimersChangeNothing()
{
    CheckPage page;
    QToolButton button;
    page.setBlinkButton(&button);
    const int id = timersOf(&page).first().timerId;
    tick(&page, id + 1);
    QCOMPARE(button.styleSheet(), QString());
    // Had the foreign tick been counted, this one would show the other green.
    tick(&page, id);
    QVERIFY(button.styleSheet().contains("#30ba78"));
}

void tst_CheckPage::noBlinkButtonNoTimer()
{
    CheckPage page;
    QToolButton button;
    page.setBlinkButton(nullptr);
    QVERIFY(timersOf(&page).isEmpty());
    page.setBlinkButton(&button);
    page.setBlinkButton(nullptr);
    QVERIFY(timersOf(&page).isEmpty());
    tick(&page, 0);
    QCOMPARE(button.styleSheet(), QString());
}

void tst_CheckPage::selectComboDataOnEmptyBox()
{
    CheckPage page;
    QComboBox combo;
    QSignalSpy changed(&combo, QOverload<int>::of(&QComboBox::currentIndexChanged));
    page.selectComboData(&combo, "a");
    QCOMPARE(combo.currentIndex(), -1);
    QCOMPARE(changed.count(), 0);
    combo.setEditable(true);
    combo.setEditText("a word");
    page.selectComboData(&combo, "a");
    QCOMPARE(combo.currentText(), QString("a word"));
}

void tst_CheckPage::selectComboDataFindsExactly()
{
    CheckPage page;
    QComboBox combo;
    combo.addItem("first", "id");
    combo.addItem("longer", "ID of another");
    combo.addItem("second", "ID");
    QSignalSpy changed(&combo, QOverload<int>::of(&QComboBox::currentIndexChanged));
    page.selectComboData(&combo, "id");
    QCOMPARE(changed.count(), 0);
    page.selectComboData(&combo, "ID");
    QCOMPARE(combo.currentIndex(), 2);
    QCOMPARE(changed.count(), 1);
    // A second device of that id keeps its choice.
    combo.addItem("twin", "ID");
    combo.setCurrentIndex(3);
    page.selectComboData(&combo, "ID");
    QCOMPARE(combo.currentIndex(), 3);
}

void tst_CheckPage::selectComboDataWithoutMatchClears()
{
    CheckPage page;
    QComboBox combo;
    combo.addItem("first", "a");
    QSignalSpy changed(&combo, QOverload<int>::of(&QComboBox::currentIndexChanged));
    page.selectComboData(&combo, "b");
    QCOMPARE(combo.currentIndex(), -1);
    QCOMPARE(changed.count(), 1);
}

void tst_CheckPage::hidingUpdatesTheDeviceState()
{
    ProblemPage page;
    page.show();
    QCOMPARE(page.updates, 0);
    page.hide();
    QCOMPARE(page.updates, 1);
}

void tst_CheckPage::metaObjectHasOneSignal()
{
    const QMetaObject& meta = CheckPage::staticMetaObject;
    QCOMPARE(meta.className(), "CheckPage");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("complete()"));
}

QTEST_MAIN(tst_CheckPage)
#include "tst_CheckPage.moc"
