// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "widgets/TipsWidget.h"

#include "tests/support/PageTools.h"

#include <QVBoxLayout>
#include <QtTest>

namespace {

const QString ButtonText = "Nothing to see? Click here";
const QString TipText = "1. The first tip.\n2. The second tip.";

} // namespace

class tst_TipsWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void buttonLook();
    void buttonIconIsTheHosts();
    void layoutHoldsButtonAndStretch();
    void tipLook();
    void clickingTwiceShowsAndHides();
    void tipStandsAboveTheButton();
    void hidesWhenThePointerLeaves();
    void pressOnTheButtonClosesAndIsNotRepeated();
    void pressElsewhereClosesAndIsRepeated();
    void escapeCloses();
    void goesWithThePage();
    void metaObjectAddsNothing();

private:
    void clickThroughWindow(const QWidget* target);

    std::unique_ptr<QWidget> m_page;
    TipsWidget* m_tips = nullptr;
    QPushButton* m_button = nullptr;
    QPushButton* m_other = nullptr;
    LumToolTip* m_tip = nullptr;
};

void tst_TipsWidget::init()
{
    m_page = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(m_page.get());
    m_other = new QPushButton("other", m_page.get());
    m_tips = new TipsWidget(ButtonText, TipText, m_page.get());
    layout->addWidget(m_other);
    layout->addStretch();
    layout->addLayout(m_tips);
    m_page->setGeometry(100, 100, 480, 400);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    m_button = qobject_cast<QPushButton*>(m_tips->itemAt(0)->widget());
    m_tip = balloonWith(TipText);
    QVERIFY(m_button && m_tip);
}

void tst_TipsWidget::cleanup()
{
    m_page.reset();
    QVERIFY(balloons().isEmpty());
}

void tst_TipsWidget::clickThroughWindow(const QWidget* target)
{
    const QPoint position = target->mapTo(m_page.get(), target->rect().center());
    QTest::mouseClick(m_page->windowHandle(), Qt::LeftButton, Qt::NoModifier, position);
}

void tst_TipsWidget::buttonLook()
{
    QCOMPARE(m_button->styleSheet(),
             QString("QPushButton{ background: transparent; color: #999999; font-size:12px; "
                     "padding-left: 0px; padding-right: 0px; border:none;}"));
    QCOMPARE(m_button->text(), ' ' + ButtonText);
    QCOMPARE(m_button->iconSize(), QSize(16, 16));
    QCOMPARE(m_button->minimumHeight(), 48);
    QCOMPARE(m_button->maximumHeight(), 48);
    QCOMPARE(m_button->cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(m_button->font().pixelSize(), 12);
    const int textWidth = m_button->fontMetrics().horizontalAdvance(' ' + ButtonText);
    QCOMPARE(m_button->minimumWidth(), textWidth + 20);
    QCOMPARE(m_button->maximumWidth(), textWidth + 20);
}

void tst_TipsWidget::buttonIconIsTheHosts()
{
    const QImage own = m_button->icon().pixmap(16, 16, QIcon::Normal, QIcon::Off).toImage();
    const QImage hosts = QIcon(":/common/images/common/invite_more.svg").pixmap(16, 16).toImage();
    QVERIFY(!hosts.isNull());
    QCOMPARE(own, hosts);
}

void tst_TipsWidget::layoutHoldsButtonAndStretch()
{
    QCOMPARE(m_tips->count(), 2);
    QCOMPARE(m_tips->stretch(0), 0);
    QCOMPARE(m_tips->itemAt(0)->alignment(), Qt::Alignment());
    QVERIFY(m_tips->itemAt(1)->spacerItem());
    QCOMPARE(m_tips->stretch(1), 100);
}

void tst_TipsWidget::tipLook()
{
    QVERIFY(m_tip->isHidden());
    QCOMPARE(m_tip->text(), TipText);
    QVERIFY(!m_tip->findChild<QLabel*>()->wordWrap());
    QCOMPARE(m_tip->windowType(), Qt::Popup);
    QCOMPARE(m_tip->width(), 448);
    QCOMPARE(m_tip->contentsMargins(), QMargins(4, 6, 4, 10));
    m_tip->show();
    const QColor body = m_tip->grab().toImage().pixelColor(440, 15);
    QVERIFY(qAbs(body.alpha() - 217) <= 1); // the alpha byte of the colour has no part in it
    QVERIFY(qAbs(body.red() - 0x23) <= 1 && body.red() == body.green() &&
            body.red() == body.blue());
}

void tst_TipsWidget::clickingTwiceShowsAndHides()
{
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(m_tip->isVisible());
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(!m_tip->isVisible());
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(m_tip->isVisible());
}

void tst_TipsWidget::tipStandsAboveTheButton()
{
    QTest::mouseClick(m_button, Qt::LeftButton);
    const QPoint corner = m_button->mapToGlobal(QPoint(0, 0));
    QCOMPARE(m_tip->geometry().bottomLeft(), corner - QPoint(8, 0));
    m_tip->hide();
    m_page->move(30, 60);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QCOMPARE(m_tip->geometry().bottomLeft(), m_button->mapToGlobal(QPoint(-8, 0)));
    QCOMPARE(m_tip->width(), 448);
}

void tst_TipsWidget::hidesWhenThePointerLeaves()
{
    QTest::mouseClick(m_button, Qt::LeftButton);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(m_tip, &leave);
    QVERIFY(!m_tip->isVisible());
}

void tst_TipsWidget::pressOnTheButtonClosesAndIsNotRepeated()
{
    clickThroughWindow(m_button);
    QVERIFY(m_tip->isVisible());
    clickThroughWindow(m_button);
    QVERIFY(!m_tip->isVisible());
    QVERIFY(m_tip->testAttribute(Qt::WA_NoMouseReplay));
}

void tst_TipsWidget::pressElsewhereClosesAndIsRepeated()
{
    clickThroughWindow(m_button);
    clickThroughWindow(m_button);
    clickThroughWindow(m_button);
    QVERIFY(m_tip->isVisible());
    clickThroughWindow(m_other);
    QVERIFY(!m_tip->isVisible());
    QVERIFY(!m_tip->testAttribute(Qt::WA_NoMouseReplay));
}

void tst_TipsWidget::escapeCloses()
{
    clickThroughWindow(m_button);
    QTest::keyClick(m_page->windowHandle(), Qt::Key_Escape);
    QVERIFY(!m_tip->isVisible());
    QVERIFY(m_page->isVisible());
}

void tst_TipsWidget::goesWithThePage()
{
    QTest::mouseClick(m_button, Qt::LeftButton);
    const QPointer<LumToolTip> tip(m_tip);
    const QPointer<QPushButton> button(m_button);
    m_page.reset();
    QVERIFY(!tip);
    QVERIFY(!button);
}

void tst_TipsWidget::metaObjectAddsNothing()
{
    const QMetaObject& meta = TipsWidget::staticMetaObject;
    QCOMPARE(meta.className(), "TipsWidget");
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

QTEST_MAIN(tst_TipsWidget)
#include "tst_TipsWidget.moc"
