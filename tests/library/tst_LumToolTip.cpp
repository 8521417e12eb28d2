// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "widgets/LumToolTip.h"

#include <QtTest>

namespace {

const QColor Fill(0xFF, 0x4A, 0x27);
constexpr int ArrowDepth = 5;

QLabel* labelOf(const QWidget& balloon)
{
    return balloon.findChild<QLabel*>();
}

QImage pictureOf(QWidget& widget)
{
    QImage picture(widget.size(), QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    widget.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return picture;
}

// The columns of a row that are painted more than half.
QPair<int, int> paintedSpan(const QImage& picture, int y)
{
    QPair<int, int> span(-1, -1);
    for (int x = 0; x < picture.width(); ++x) {
        if (qAlpha(picture.pixel(x, y)) > 127) {
            span.first = span.first < 0 ? x : span.first;
            span.second = x;
        }
    }
    return span;
}

} // namespace

class tst_LumToolTip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutParentItIsAPopup();
    void withParentItIsAPlainChild();
    void labelLook_data();
    void labelLook();
    void labelHasNoFontOfItsOwn();
    void textIsShownAsQtShowsIt();
    void arrowPlace_data();
    void arrowPlace();
    void balloonIsRoundAndSlightlyTransparent();
    void hidesOnLeave_data();
    void hidesOnLeave();
    void metaObjectAddsNothing();
};

void tst_LumToolTip::withoutParentItIsAPopup()
{
    const LumToolTip balloon("text", false, nullptr, Qt::AlignLeft, false, Fill);
    QCOMPARE(balloon.windowType(), Qt::Popup);
    QVERIFY(balloon.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(balloon.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
    QVERIFY(balloon.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(balloon.layout()->contentsMargins(), QMargins(5, 3, 5, 8));
    QVERIFY(!balloon.isVisible());
}

void tst_LumToolTip::withParentItIsAPlainChild()
{
    QWidget parent;
    const LumToolTip balloon("text", false, &parent, Qt::AlignLeft, false, Fill);
    QCOMPARE(balloon.parentWidget(), &parent);
    QCOMPARE(balloon.windowType(), Qt::Widget);
    QVERIFY(!balloon.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(!balloon.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
    QVERIFY(!balloon.testAttribute(Qt::WA_TranslucentBackground));
    QWidget plainChild(&parent);
    const QHBoxLayout plainLayout(&plainChild);
    QCOMPARE(balloon.layout()->contentsMargins(), plainLayout.contentsMargins());
}

void tst_LumToolTip::labelLook_data()
{
    QTest::addColumn<bool>("wordWrap");
    QTest::newRow("one line") << false;
    QTest::newRow("wrapped") << true;
}

void tst_LumToolTip::labelLook()
{
    QFETCH(bool, wordWrap);
    const QString text = "a text of a few words\nand a second line";
    const LumToolTip balloon(text, wordWrap, nullptr, Qt::AlignLeft, false, Fill);
    QCOMPARE(balloon.text(), text);
    const QLabel* label = labelOf(balloon);
    QVERIFY(label);
    QCOMPARE(label->text(), text);
    QCOMPARE(label->wordWrap(), wordWrap);
    QCOMPARE(label->styleSheet(), QString("color: white; background-color: transparent;"));
    QCOMPARE(balloon.layout()->indexOf(const_cast<QLabel*>(label)), 0);
    QCOMPARE(balloon.layout()->count(), 1);
    QVERIFY(balloon.width() >= label->sizeHint().width() || wordWrap);
    QVERIFY(balloon.height() >= label->sizeHint().height() + 3 + 8);
}

void tst_LumToolTip::labelHasNoFontOfItsOwn()
{
    const LumToolTip balloon("text", false, nullptr, Qt::AlignLeft, false, Fill);
    QVERIFY(!labelOf(balloon)->testAttribute(Qt::WA_SetFont));
    QCOMPARE(labelOf(balloon)->font().key(), QApplication::font("QLabel").key());
}

void tst_LumToolTip::textIsShownAsQtShowsIt()
{
    const QString text = "<b>bold</b>";
    const LumToolTip balloon(text, false, nullptr, Qt::AlignLeft, false, Fill);
    QCOMPARE(balloon.text(), text);
    QCOMPARE(labelOf(balloon)->textFormat(), Qt::AutoText);
    QVERIFY(labelOf(balloon)->sizeHint().width() <
            labelOf(balloon)->fontMetrics().horizontalAdvance(text));
}

void tst_LumToolTip::arrowPlace_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<bool>("isCentred");
    QTest::newRow("132") << Qt::Alignment(132) << true;
    QTest::newRow("AlignLeft") << Qt::Alignment(Qt::AlignLeft) << false;
    QTest::newRow("AlignHCenter alone") << Qt::Alignment(Qt::AlignHCenter) << false;
    QTest::newRow("AlignVCenter alone") << Qt::Alignment(Qt::AlignVCenter) << false;
    QTest::newRow("AlignRight") << Qt::Alignment(Qt::AlignRight) << false;
}

void tst_LumToolTip::arrowPlace()
{
    QFETCH(Qt::Alignment, alignment);
    QFETCH(bool, isCentred);
    LumToolTip balloon("a text", false, nullptr, alignment, false, Fill);
    balloon.setFixedSize(201, 40);
    const QImage picture = pictureOf(balloon);
    const int bottom = balloon.height() - 1 - ArrowDepth;
    const int left = isCentred ? balloon.rect().center().x() - 5 : 10;

    // The row of the triangle that is two pixels under its base.
    const auto [first, last] = paintedSpan(picture, bottom + 2);
    QVERIFY2(qAbs(first - (left + 2)) <= 1, qPrintable(QString::number(first)));
    QVERIFY2(qAbs(last - (left + 7)) <= 1, qPrintable(QString::number(last)));
    QCOMPARE(paintedSpan(picture, balloon.height() - 1).first, -1); // the tip is a point
    const auto [bodyFirst, bodyLast] = paintedSpan(picture, bottom - 6);
    QCOMPARE(bodyFirst, 0);
    QCOMPARE(bodyLast, 200);
}

void tst_LumToolTip::balloonIsRoundAndSlightlyTransparent()
{
    LumToolTip balloon("a text", false, nullptr, Qt::AlignLeft, false, Fill);
    balloon.setFixedSize(200, 40);
    const QImage picture = pictureOf(balloon);
    QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(picture.pixel(199, 0)), 0);
    const QColor body = picture.pixelColor(2, 15);
    QVERIFY2(qAbs(body.alpha() - 217) <= 1, qPrintable(QString::number(body.alpha())));
    QVERIFY(qAbs(body.red() - Fill.red()) <= 1 && qAbs(body.green() - Fill.green()) <= 1 &&
            qAbs(body.blue() - Fill.blue()) <= 1);
}

void tst_LumToolTip::hidesOnLeave_data()
{
    QTest::addColumn<bool>("hideOnLeave");
    QTest::newRow("hides") << true;
    QTest::newRow("stays") << false;
}

void tst_LumToolTip::hidesOnLeave()
{
    QFETCH(bool, hideOnLeave);
    LumToolTip balloon("text", false, nullptr, Qt::AlignLeft, hideOnLeave, Fill);
    balloon.show();
    QVERIFY(balloon.isVisible());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&balloon, &leave);
    QCOMPARE(balloon.isVisible(), !hideOnLeave);
}

void tst_LumToolTip::metaObjectAddsNothing()
{
    const QMetaObject& meta = LumToolTip::staticMetaObject;
    QCOMPARE(meta.className(), "LumToolTip");
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

QTEST_MAIN(tst_LumToolTip)
#include "tst_LumToolTip.moc"
