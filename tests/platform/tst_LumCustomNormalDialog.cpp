// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumWidgets/LumCustomNormalDialog.h>
#include <LumWidgets/LumMessageBox.h>

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <QWindow>
#include <QtTest>

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
    void crossShowsItsFocus();
    void parentlessPopupsBelongToIt();
    void questionHasNoPictures();
};

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

void tst_LumCustomNormalDialog::crossShowsItsFocus()
{
    LumCustomNormalDialog dialog(LumCustomNormalDialog::Normal, nullptr, {}, nullptr, false);
    auto* center = new Center;
    new QPushButton("first", center);
    dialog.setCenterWidget(center, false);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto* cross = dialog.findChild<QToolButton*>("closeButton");
    const QPoint edge = cross->mapTo(&dialog, QPoint(cross->width() / 2, 0));
    const int before = qGray(dialog.grab().toImage().pixel(edge));
    cross->setFocus();
    const int focused = qGray(dialog.grab().toImage().pixel(edge));
    QVERIFY2(before > 200 && focused < 100, qPrintable(QString::number(focused)));
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

QTEST_MAIN(tst_LumCustomNormalDialog)
#include "tst_LumCustomNormalDialog.moc"
