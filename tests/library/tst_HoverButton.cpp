// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/PageTools.h"
#include "widgets/HoverButton.h"

#include <QPainter>
#include <QPointer>
#include <QtTest>

namespace {

void enter(QWidget* widget)
{
    QEnterEvent event({1, 1}, {1, 1}, {1, 1});
    QCoreApplication::sendEvent(widget, &event);
}

void leave(QWidget* widget)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

class tst_HoverButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void look();
    void tipIsTheParentsChild();
    void tipIsGreenWithItsArrowInTheMiddle();
    void withoutPermissionNoTip();
    void enteringShowsTheTipAbove();
    void leavingHidesTheTip();
    void leavingHidesADisallowedTip();
    void tipHidesWhenThePointerLeavesIt();
    void raisedButtonGoesWithItsParent();
    void movedButtonTakesItsTipAlong();
    void withoutParent();

private:
    std::unique_ptr<QWidget> m_parent;
    HoverButton* m_button = nullptr;
    LumToolTip* m_tip = nullptr;
};

void tst_HoverButton::init()
{
    m_parent = std::make_unique<QWidget>();
    m_parent->resize(400, 300);
    m_button = new HoverButton("Press me", "What it does", m_parent.get());
    m_button->setGeometry(100, 200, 168, 32);
    m_parent->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_parent.get()));
    m_tip = m_parent->findChild<LumToolTip*>();
    QVERIFY(m_tip);
}

void tst_HoverButton::cleanup()
{
    m_parent.reset();
}

void tst_HoverButton::look()
{
    QCOMPARE(m_button->text(), QString("Press me"));
    QCOMPARE(m_button->styleSheet(),
             QString("QPushButton{ border-radius: 3px; border: 1px solid rgb( 47, 186, 119 ); "
                     "min-width: 168px; min-height: 30px; max-width: 138px; max-height: 30px; "
                     "font-size: 14px; color: rgb( 47, 186, 119 );}QPushButton:hover{ "
                     "background-color: #30ba78; color: white;} QPushButton:disabled{\t"
                     "background-color: #A6ACBB; color: white; border: none;}"));
    QCOMPARE(ownMethods(HoverButton::staticMetaObject), QList<QByteArray>());
}

void tst_HoverButton::tipIsTheParentsChild()
{
    QCOMPARE(m_tip->parentWidget(), m_parent.get());
    QVERIFY(!m_tip->isWindow());
    QVERIFY(m_tip->isHidden());
    QCOMPARE(m_tip->text(), QString("What it does"));
}

void tst_HoverButton::tipIsGreenWithItsArrowInTheMiddle()
{
    m_button->setTipEnabled(true);
    enter(m_button);
    QImage picture(m_tip->size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    m_tip->render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
    const QColor fill = picture.convertToFormat(QImage::Format_ARGB32).pixelColor(20, 2);
    for (const auto& [is, wanted] : {std::pair(fill.red(), 48), std::pair(fill.green(), 186),
                                     std::pair(fill.blue(), 120), std::pair(fill.alpha(), 217)}) {
        QVERIFY2(qAbs(is - wanted) <= 2, qPrintable(QString("%1, not %2").arg(is).arg(wanted)));
    }
    QVERIFY(isArrowInTheMiddle(*m_tip));
}

void tst_HoverButton::withoutPermissionNoTip()
{
    enter(m_button);
    QVERIFY(m_tip->isHidden());
    m_button->setTipEnabled(true);
    m_button->setTipEnabled(false);
    enter(m_button);
    QVERIFY(m_tip->isHidden());
}

void tst_HoverButton::enteringShowsTheTipAbove()
{
    m_button->setTipEnabled(true);
    enter(m_button);
    QVERIFY(m_tip->isVisible());
    QCOMPARE(m_tip->size(), m_tip->sizeHint());
    const QRect button = m_button->geometry();
    QCOMPARE(m_tip->geometry().center(),
             QPoint(button.center().x(), button.top() - m_tip->height() / 2));
}

void tst_HoverButton::leavingHidesTheTip()
{
    m_button->setTipEnabled(true);
    enter(m_button);
    leave(m_button);
    QVERIFY(m_tip->isHidden());
}

void tst_HoverButton::leavingHidesADisallowedTip()
{
    m_button->setTipEnabled(true);
    enter(m_button);
    m_button->setTipEnabled(false);
    QVERIFY(m_tip->isVisible());
    leave(m_button);
    QVERIFY(m_tip->isHidden());
}

void tst_HoverButton::tipHidesWhenThePointerLeavesIt()
{
    m_button->setTipEnabled(true);
    enter(m_button);
    leave(m_tip);
    QVERIFY(m_tip->isHidden());
}

void tst_HoverButton::raisedButtonGoesWithItsParent()
{
    const QPointer<LumToolTip> tip(m_tip);
    m_button->raise();
    QVERIFY(m_parent->children().indexOf(m_tip) > m_parent->children().indexOf(m_button));
    m_parent.reset();
    QVERIFY(!tip);
}

void tst_HoverButton::movedButtonTakesItsTipAlong()
{
    auto other = std::make_unique<QWidget>();
    m_button->setParent(other.get());
    QCOMPARE(m_tip->parentWidget(), other.get());
    m_parent.reset(); // would take a tip that stayed behind
    QCOMPARE(m_tip->text(), QString("What it does"));
}

void tst_HoverButton::withoutParent()
{
    HoverButton button("Press me", "What it does", nullptr);
    button.setTipEnabled(true);
    const LumToolTip* balloon = balloonWith("What it does");
    QVERIFY(balloon);
    enter(&button);
    QVERIFY(balloon->isVisible());
    leave(&button);
    QVERIFY(!balloon->isVisible());
}

QTEST_MAIN(tst_HoverButton)
#include "tst_HoverButton.moc"
