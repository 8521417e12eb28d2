// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/PageTools.h"
#include "tests/support/TimerTools.h"
#include "widgets/CycleButton.h"

#include <QtTest>

namespace {

const QString Normal = ":/Kestrel/Images/play.svg";
const QString Hover = ":/Kestrel/Images/play_hover.svg";
const QStringList Frames{":/Kestrel/Images/playing0.svg", ":/Kestrel/Images/playing1.svg",
                         ":/Kestrel/Images/playing2.svg"};
constexpr int FrameIntervalMs = 300;

QString styleWith(const QString& frame)
{
    return "QPushButton{border:none;background: transparent;image:url(" + Normal +
           ");}QPushButton:hover{image:url(" + Hover + ");}QPushButton:disabled{image:url(" +
           frame + ");}";
}

int frameOf(const QPushButton& button)
{
    for (int i = 0; i < Frames.size(); ++i) {
        if (button.styleSheet() == styleWith(Frames.at(i))) {
            return i;
        }
    }
    return -1;
}

int frameTimer(CycleButton& button)
{
    const auto timers = timersOf(&button);
    return timers.size() == 1 ? timers.first().timerId : 0;
}

} // namespace

class tst_CycleButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void bareButton();
    void styleSheet();
    void updatingShowsTheNextFrame();
    void settingImagesAgainReplacesThem();
    void disablingStartsTheTimer();
    void enablingStopsTheTimerAndUpdatesAtOnce();
    void onlyItsOwnTimerCounts();
    void twoButtonsSkipFrames();
    void enabledChangeIsNotPassedOn();
    void animatedClickStillWorks();
    void disabledByItsParent();
    void keepsTheFocusWhileDisabled();
    void framesFollowTheClock();

private:
    void setImages(CycleButton& button)
    {
        button.setImages(Normal, Hover, Frames.at(0), Frames.at(1), Frames.at(2));
    }
};

// The count of frames is the process's: the first update of all shows the second frame.
void tst_CycleButton::initTestCase()
{
    CycleButton button(nullptr);
    setImages(button);
    QCOMPARE(frameOf(button), 1);
    button.updateStyle();
    QCOMPARE(frameOf(button), 2);
    button.updateStyle();
    QCOMPARE(frameOf(button), 0);
}

void tst_CycleButton::bareButton()
{
    CycleButton button(nullptr);
    QCOMPARE(button.iconSize(), QSize(50, 50));
    QCOMPARE(button.styleSheet(), QString());
    QVERIFY(timersOf(&button).isEmpty());
    QTest::ignoreMessage(QtWarningMsg, "QFSFileEngine::open: No file name specified");
    button.updateStyle(); // without images
    QCOMPARE(button.styleSheet(),
             QString("QPushButton{border:none;background: transparent;image:url();}"
                     "QPushButton:hover{image:url();}QPushButton:disabled{image:url();}"));
    QCOMPARE(ownMethods(CycleButton::staticMetaObject), QList<QByteArray>());
}

void tst_CycleButton::styleSheet()
{
    CycleButton button(nullptr);
    setImages(button);
    QVERIFY2(frameOf(button) >= 0, qPrintable(button.styleSheet()));
}

void tst_CycleButton::updatingShowsTheNextFrame()
{
    CycleButton button(nullptr);
    setImages(button);
    for (int i = 0; i < 7; ++i) {
        const int before = frameOf(button);
        button.updateStyle();
        QCOMPARE(frameOf(button), (before + 1) % 3);
    }
}

void tst_CycleButton::settingImagesAgainReplacesThem()
{
    CycleButton button(nullptr);
    button.setImages("a", "b", "c", "d", "e");
    setImages(button);
    for (int i = 0; i < 3; ++i) {
        button.updateStyle();
        QVERIFY(frameOf(button) >= 0);
    }
}

void tst_CycleButton::disablingStartsTheTimer()
{
    CycleButton button(nullptr);
    setImages(button);
    const int before = frameOf(button);
    button.setEnabled(false);
    const auto timers = timersOf(&button);
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.first().interval, FrameIntervalMs);
    QCOMPARE(timers.first().timerType, Qt::CoarseTimer);
    QCOMPARE(frameOf(button), before); // the first change comes with the first tick
    tick(&button, timers.first().timerId);
    QCOMPARE(frameOf(button), (before + 1) % 3);
}

void tst_CycleButton::enablingStopsTheTimerAndUpdatesAtOnce()
{
    CycleButton button(nullptr);
    setImages(button);
    button.setEnabled(false);
    const int timer = frameTimer(button);
    const int before = frameOf(button);
    button.setEnabled(true);
    QVERIFY(timersOf(&button).isEmpty());
    QCOMPARE(frameOf(button), (before + 1) % 3);
    tick(&button, timer); // a late one
    QCOMPARE(frameOf(button), (before + 1) % 3);
}

void tst_CycleButton::onlyItsOwnTimerCounts()
{
    CycleButton button(nullptr);
    setImages(button);
    button.setEnabled(false);
    const int before = frameOf(button);
    tick(&button, frameTimer(button) + 1000);
    QCOMPARE(frameOf(button), before);
}

void tst_CycleButton::twoButtonsSkipFrames()
{
    CycleButton one(nullptr);
    CycleButton other(nullptr);
    setImages(one);
    setImages(other);
    one.setEnabled(false);
    other.setEnabled(false);
    const int before = frameOf(one);
    tick(&other, frameTimer(other));
    const int ofOther = frameOf(other);
    QCOMPARE(frameOf(one), before);
    tick(&one, frameTimer(one));
    QCOMPARE(frameOf(one), (ofOther + 1) % 3);
}

// The base handler would let go of a pressed button.
void tst_CycleButton::enabledChangeIsNotPassedOn()
{
    CycleButton button(nullptr);
    button.setDown(true);
    button.setEnabled(false);
    QVERIFY(button.isDown());
    QPushButton plain;
    plain.setDown(true);
    plain.setEnabled(false);
    QVERIFY(!plain.isDown());
}

void tst_CycleButton::animatedClickStillWorks()
{
    CycleButton button(nullptr);
    QSignalSpy clicked(&button, &QPushButton::clicked);
    button.animateClick(0);
    QTRY_COMPARE(clicked.count(), 1);
}

void tst_CycleButton::disabledByItsParent()
{
    QWidget parent;
    CycleButton button(&parent);
    setImages(button);
    parent.setEnabled(false);
    QVERIFY(frameTimer(button) != 0);
    parent.setEnabled(true);
    QVERIFY(timersOf(&button).isEmpty());
}

// Qt passes the focus of any other button on.
void tst_CycleButton::keepsTheFocusWhileDisabled()
{
    QWidget window;
    CycleButton button(&window);
    setImages(button);
    QPushButton plain(&window);
    QPushButton last(&window);
    QWidget::setTabOrder(&button, &plain);
    QWidget::setTabOrder(&plain, &last);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    button.setFocus();
    button.setEnabled(false);
    QCOMPARE(window.focusWidget(), &button);
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    QCOMPARE(window.focusWidget(), &plain);
    plain.setEnabled(false);
    QCOMPARE(window.focusWidget(), &last);
    button.setEnabled(true);
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    QCOMPARE(window.focusWidget(), &button);
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    QCOMPARE(window.focusWidget(), &last);
}

void tst_CycleButton::framesFollowTheClock()
{
    CycleButton button(nullptr);
    setImages(button);
    button.setEnabled(false);
    const int before = frameOf(button);
    QTRY_COMPARE(frameOf(button), (before + 1) % 3);
    QTRY_COMPARE(frameOf(button), (before + 2) % 3);
    QTRY_COMPARE(frameOf(button), before);
}

QTEST_MAIN(tst_CycleButton)
#include "tst_CycleButton.moc"
