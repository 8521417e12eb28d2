// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/DesktopPalettes.h"
#include "tests/support/PaintedContrast.h"

#include <LumWidgets/LumCustomNormalDialog.h>
#include <LumWidgets/LumMessageBox.h>

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QToolButton>
#include <QWindow>
#include <QtTest>

using namespace TestSupport;

namespace {

class Center : public QLabel
{
public:
    explicit Center(bool refuses = false) : QLabel("centre"), m_refuses(refuses)
    {
        setFixedSize(200, 100);
    }

    int asked = 0;

protected:
    void closeEvent(QCloseEvent* event) override
    {
        ++asked;
        event->setAccepted(!m_refuses);
    }

private:
    bool m_refuses;
};

class PaintedLabel : public QLabel
{
public:
    using QLabel::QLabel;

    int paints = 0;
    QString painted;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QLabel::paintEvent(event);
        ++paints;
        painted = text();
    }
};

class TitleBar : public QLabel, public ICustomedTitleBar
{
public:
    QWidget* widget() override { return this; }
    void setTitleText(const QString& text) override { setText(text); }
};

} // namespace

class tst_LumCustomNormalDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheCentreOver();
    void nullCentreClosesAtOnce();
    void refusalKeepsItOpen();
    void centreClosingEndsIt();
    void centreDestroyedEndsIt();
    void hidingTheDialogIsNoClosing();
    void centreGoneBeforeTheLoopEndsIt();
    void parentDestroyedEndsIt();
    void titleIsShownAsQtShowsIt();
    void ownTitleBar();
    void focusStartsInTheCentre();
    void focusIsSeen_data() { addPalettes(); }
    void focusIsSeen();
    void ringFollowsItsControl();
    void clickHidesTheRing();
    void textsAreReadable_data();
    void textsAreReadable();
    void questionIsReadable_data() { addPalettes(); }
    void questionIsReadable();
    void popupStaysOnTheScreen();
    void parentlessPopupsBelongToIt();
    void questionHasNoPictures();
    void questionHasAnEdge();
    void paintsNoMoreOftenThanAScreenShows();
    void paintsAtOnceAfterAPause();

private:
    static void addPalettes();
};

void tst_LumCustomNormalDialog::addPalettes()
{
    QTest::addColumn<QString>("palette");
    for (const QString& name : desktopPalettes()) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void tst_LumCustomNormalDialog::takesTheCentreOver()
{
    const QPointer<Center> center = new Center;
    {
        LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
        dialog.setCenterWidget(center, false);
        dialog.show();
        QVERIFY(center->isVisible());
        QCOMPARE(center->window(), &dialog);
    }
    QVERIFY(!center);
}

void tst_LumCustomNormalDialog::nullCentreClosesAtOnce()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    dialog.setCenterWidget(nullptr, false);
    QTimer::singleShot(0, &dialog, &QWidget::close);
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void tst_LumCustomNormalDialog::refusalKeepsItOpen()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    auto* center = new Center(true);
    dialog.setCenterWidget(center, false);
    dialog.show();
    QVERIFY(!dialog.close());
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QTest::mouseClick(dialog.findChild<QToolButton*>("closeButton"), Qt::LeftButton);
    QCOMPARE(center->asked, 3);
    QVERIFY(dialog.isVisible());
}

void tst_LumCustomNormalDialog::centreClosingEndsIt()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    auto* center = new Center;
    dialog.setCenterWidget(center, false);
    QTimer::singleShot(0, center, &QWidget::close);
    dialog.exec();
    QCOMPARE(center->asked, 1);
    QVERIFY(!dialog.isVisible());
}

void tst_LumCustomNormalDialog::centreDestroyedEndsIt()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    auto* center = new Center;
    dialog.setCenterWidget(center, false);
    QTimer::singleShot(0, &dialog, [center] { delete center; });
    dialog.exec();
    QVERIFY(!dialog.isVisible());
}

void tst_LumCustomNormalDialog::hidingTheDialogIsNoClosing()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    dialog.setCenterWidget(new Center, false);
    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.show();
    dialog.hide();
    dialog.show();
    QCOMPARE(finished.count(), 0);
    QVERIFY(dialog.isVisible());
}

void tst_LumCustomNormalDialog::centreGoneBeforeTheLoopEndsIt()
{
    class FleetingCenter : public QLabel
    {
    protected:
        void showEvent(QShowEvent* event) override
        {
            QLabel::showEvent(event);
            close();
        }
    };
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    dialog.setCenterWidget(new FleetingCenter, false);
    dialog.exec();
    QVERIFY(!dialog.isVisible());
}

void tst_LumCustomNormalDialog::parentDestroyedEndsIt()
{
    auto* parent = new QWidget;
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, parent, {}, nullptr, false);
    dialog.setCenterWidget(new Center, false);
    const Qt::WindowFlags flags = dialog.windowFlags();
    QCOMPARE(dialog.parent(), parent);
    QTimer::singleShot(0, &dialog, [parent] { delete parent; });
    dialog.exec();
    QVERIFY(!dialog.parent());
    QCOMPARE(dialog.windowFlags(), flags);
    QVERIFY(!dialog.isVisible());
}

void tst_LumCustomNormalDialog::titleIsShownAsQtShowsIt()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    dialog.setTitleText("<b>bold</b>");
    QCOMPARE(dialog.windowTitle(), QString("<b>bold</b>"));
    auto* title = dialog.findChild<QLabel*>("titleLabel");
    QCOMPARE(title->text(), QString("<b>bold</b>"));
    QCOMPARE(title->textFormat(), Qt::AutoText);
}

void tst_LumCustomNormalDialog::ownTitleBar()
{
    auto* bar = new TitleBar;
    const QPointer<QLabel> guard = bar;
    {
        LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, bar, false);
        dialog.setTitleText("title");
        QCOMPARE(bar->text(), QString("title"));
        QVERIFY(!dialog.findChild<QLabel*>("titleLabel"));
    }
    QVERIFY(!guard);
}

// The cross comes last by the Tab key.
void tst_LumCustomNormalDialog::focusStartsInTheCentre()
{
    auto* center = new Center;
    auto* first = new QPushButton("first", center);
    auto* last = new QPushButton("last", center);
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    dialog.setCenterWidget(center, false);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCOMPARE(dialog.focusWidget(), first);
    QTest::keyClick(first, Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), last);
    QTest::keyClick(last, Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), dialog.findChild<QWidget*>("closeButton"));
}

// The colours of the controls are those of the pages.
void tst_LumCustomNormalDialog::focusIsSeen()
{
    QFETCH(QString, palette);
    const DesktopPalette desktop(palette);
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    auto* center = new Center;
    auto* next = new QPushButton("Next", center);
    next->setStyleSheet("QPushButton{border-radius:3px;background-color:#009265;color:white;}");
    next->setGeometry(10, 10, 138, 30);
    auto* slider = new QSlider(Qt::Horizontal, center);
    slider->setStyleSheet("QSlider::groove:horizontal{height:2px;background:#CCCCCC;}");
    slider->setGeometry(10, 60, 138, 22);
    dialog.setCenterWidget(center, false);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto* cross = dialog.findChild<QToolButton*>("closeButton");
    for (QWidget* control : {static_cast<QWidget*>(next), static_cast<QWidget*>(slider),
                             static_cast<QWidget*>(cross)}) {
        control->clearFocus();
        const QImage without = pictureOf(&dialog);
        control->setFocus(Qt::TabFocusReason);
        const QRect place(control->mapTo(&dialog, QPoint()), control->size());
        const int pixels = focusPixels(pictureOf(&dialog), without, place.adjusted(-4, -4, 4, 4));
        QVERIFY2(pixels >= 2 * (place.width() + place.height()),
                 qPrintable(control->metaObject()->className() + QString(" %1").arg(pixels)));
    }
}

void tst_LumCustomNormalDialog::ringFollowsItsControl()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    auto* center = new Center;
    auto* first = new QPushButton("first", center);
    dialog.setCenterWidget(center, false);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto* ring = dialog.findChild<QWidget*>("focusRing");
    const auto isAround = [&] {
        const QRect place(first->mapTo(&dialog, QPoint()), first->size());
        return ring->isVisible() && ring->geometry() == place.adjusted(-4, -4, 4, 4);
    };
    QVERIFY(isAround());
    first->move(30, 40);
    QVERIFY(isAround());
    first->resize(90, 20);
    QVERIFY(isAround());
    first->hide();
    QVERIFY(!ring->isVisible() || !isAround());
    first->show();
    first->setFocus();
    QVERIFY(isAround());
    delete first;
    QVERIFY(!ring->isVisible() || ring->geometry().top() < center->y());
}

void tst_LumCustomNormalDialog::clickHidesTheRing()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    auto* center = new Center;
    auto* first = new QPushButton("first", center);
    auto* second = new QPushButton("second", center);
    second->move(0, 50);
    dialog.setCenterWidget(center, false);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const auto* ring = dialog.findChild<QWidget*>("focusRing");
    QVERIFY(ring->isVisible());
    QTest::mouseClick(first, Qt::LeftButton);
    QVERIFY(!ring->isVisible());
    QTest::keyClick(first, Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), second);
    QVERIFY(ring->isVisible());
    QVERIFY(ring->testAttribute(Qt::WA_TransparentForMouseEvents));
}

void tst_LumCustomNormalDialog::textsAreReadable_data()
{
#ifdef Q_OS_WIN
    // There the style paints fields and buttons as the system has them, whatever the palette says.
    QTest::addColumn<QString>("palette");
    QTest::newRow("light") << "light";
#else
    addPalettes();
#endif
}

void tst_LumCustomNormalDialog::textsAreReadable()
{
    QFETCH(QString, palette);
    const DesktopPalette desktop(palette);
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    dialog.setTitleText("title");
    auto* center = new Center;
    auto* field = new QLineEdit("field", center);
    auto* button = new QPushButton("button", center);
    field->move(0, 60);
    button->move(100, 0);
    dialog.setCenterWidget(center, false);
    dialog.show();
    const QImage picture = pictureOf(&dialog);
    auto* title = dialog.findChild<QLabel*>("titleLabel");
    for (QWidget* text : {static_cast<QWidget*>(field), static_cast<QWidget*>(button),
                          static_cast<QWidget*>(title)}) {
        const QRect place(text->mapTo(&dialog, QPoint()), text->size());
        const double ratio = textContrast(picture, place.adjusted(2, 2, -2, -2));
        QVERIFY2(ratio >= Contrast::LeastOfText,
                 qPrintable(text->metaObject()->className() + QString(" %1").arg(ratio)));
    }
    QVERIFY(qGray(picture.pixel(center->mapTo(&dialog, QPoint(150, 90)))) > 250);
}

void tst_LumCustomNormalDialog::questionIsReadable()
{
    QFETCH(QString, palette);
    const DesktopPalette desktop(palette);
    bool isReached = false;
    QTimer::singleShot(0, this, [&isReached] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        isReached = true;
        const auto close = qScopeGuard([box] { box->button(QMessageBox::No)->click(); });
        box->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(box));
        QWidget* yes = box->button(QMessageBox::Yes);
        QWidget* no = box->button(QMessageBox::No);
        no->setFocus(Qt::TabFocusReason);
        const QImage atNo = pictureOf(box);
        yes->setFocus(Qt::TabFocusReason);
        const QImage atYes = pictureOf(box);
        for (QWidget* part : {yes, no, box->findChild<QWidget*>("qt_msgbox_label")}) {
            const QRect place(part->mapTo(box, QPoint()), part->size());
            QVERIFY(textContrast(atYes, place.adjusted(6, 4, -6, -4)) >= Contrast::LeastOfText);
            if (part == yes || part == no) {
                const int pixels = focusPixels(atYes, atNo, place.adjusted(-4, -4, 4, 4));
                QVERIFY2(pixels >= 2 * (place.width() + place.height()),
                         qPrintable(QString::number(pixels)));
            }
        }
    });
    LumMessageBox::question(nullptr, "title", "text", QMessageBox::Yes | QMessageBox::No,
                            QMessageBox::Yes);
    QVERIFY(isReached);
}

// Of its own: there may be no window manager.
void tst_LumCustomNormalDialog::questionHasAnEdge()
{
    QImage picture;
    QTimer::singleShot(0, this, [&picture] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        picture = pictureOf(box);
        box->button(QMessageBox::No)->click();
    });
    LumMessageBox::question(nullptr, "title", "text", QMessageBox::Yes | QMessageBox::No,
                            QMessageBox::Yes);
    QVERIFY(!picture.isNull());
    const QPoint middle = picture.rect().center();
    for (const QPoint& edge : {QPoint(middle.x(), 0), QPoint(middle.x(), picture.height() - 1),
                               QPoint(0, middle.y()), QPoint(picture.width() - 1, middle.y())}) {
        QVERIFY(Contrast::ratio(picture.pixel(edge), qRgb(255, 255, 255)) >=
                Contrast::LeastOfFocus);
    }
}

void tst_LumCustomNormalDialog::popupStaysOnTheScreen()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    dialog.setCenterWidget(new Center, false);
    dialog.show();
    const QRect screen = dialog.screen()->availableGeometry();
    QLabel popup("balloon", nullptr, Qt::Popup | Qt::FramelessWindowHint);
    popup.setFixedSize(100, 40);
    popup.show();
    for (const QPoint corner : {screen.bottomRight(), screen.topLeft() - QPoint(30, 30)}) {
        popup.move(corner);
        QVERIFY(screen.contains(popup.geometry()));
    }
    popup.move(50, 60);
    QCOMPARE(popup.pos(), QPoint(50, 60));
    popup.hide();
}

void tst_LumCustomNormalDialog::parentlessPopupsBelongToIt()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    dialog.setCenterWidget(new Center, false);
    dialog.show();
    QLabel popup("balloon", nullptr, Qt::Popup | Qt::FramelessWindowHint);
    popup.show();
    QVERIFY(popup.windowHandle());
    QCOMPARE(popup.windowHandle()->transientParent(), dialog.windowHandle());
    popup.hide();
}

void tst_LumCustomNormalDialog::questionHasNoPictures()
{
    int buttons = 0;
    QTimer::singleShot(0, this, [&buttons] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        for (const QAbstractButton* button : box->buttons()) {
            QVERIFY(button->icon().isNull());
            ++buttons;
        }
        box->button(QMessageBox::No)->click();
    });
    const QMessageBox::StandardButton answer = LumMessageBox::question(
        nullptr, "title", "text", QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    QCOMPARE(answer, QMessageBox::No);
    QCOMPARE(buttons, 2);
}

// As when a thousand devices come and go in a second.
void tst_LumCustomNormalDialog::paintsNoMoreOftenThanAScreenShows()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    auto* center = new PaintedLabel("0");
    dialog.setCenterWidget(center, false);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    center->paints = 0;
    QElapsedTimer clock;
    clock.start();
    int changes = 0;
    while (clock.elapsed() < 300) {
        center->setText(QString::number(++changes));
        QCoreApplication::processEvents();
        if (changes % 2 == 0) {
            center->repaint();
        }
    }
    const int most = static_cast<int>(clock.elapsed() / 15) + 2;
    QVERIFY2(changes > 2 * most, qPrintable(QString::number(changes)));
    QVERIFY2(center->paints <= most, qPrintable(QString::number(center->paints)));
    QTRY_COMPARE(center->painted, QString::number(changes));
}

// Whoever moves a slider doesn't wait.
void tst_LumCustomNormalDialog::paintsAtOnceAfterAPause()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    auto* center = new PaintedLabel("0");
    dialog.setCenterWidget(center, false);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    for (int i = 1; i <= 5; ++i) {
        QTest::qWait(40);
        center->setText(QString::number(i));
        QCoreApplication::processEvents();
        QCOMPARE(center->painted, QString::number(i));
    }
}

QTEST_MAIN(tst_LumCustomNormalDialog)
#include "tst_LumCustomNormalDialog.moc"
