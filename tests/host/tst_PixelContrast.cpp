// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/PixelContrast.h"

#include <QtTest>

class tst_PixelContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ratio_data();
    void ratio();
    void textHasTheColourThatDiffersMost();
    void changeNeedsEnoughPixels();
};

// The figures are those of WCAG's own examples and calculators.
void tst_PixelContrast::ratio_data()
{
    QTest::addColumn<QRgb>("a");
    QTest::addColumn<QRgb>("b");
    QTest::addColumn<double>("expected");
    QTest::newRow("black on white") << qRgb(0, 0, 0) << qRgb(255, 255, 255) << 21.0;
    QTest::newRow("the same") << qRgb(80, 90, 100) << qRgb(80, 90, 100) << 1.0;
    QTest::newRow("#767676 on white") << qRgb(0x76, 0x76, 0x76) << qRgb(255, 255, 255) << 4.54;
    QTest::newRow("red on white") << qRgb(255, 0, 0) << qRgb(255, 255, 255) << 4.0;
    QTest::newRow("blue on white") << qRgb(0, 0, 255) << qRgb(255, 255, 255) << 8.59;
}

void tst_PixelContrast::ratio()
{
    QFETCH(QRgb, a);
    QFETCH(QRgb, b);
    QFETCH(double, expected);
    QVERIFY(std::abs(Contrast::ratio(a, b) - expected) < 0.01);
    QCOMPARE(Contrast::ratio(a, b), Contrast::ratio(b, a));
}

void tst_PixelContrast::textHasTheColourThatDiffersMost()
{
    QImage picture(10, 10, QImage::Format_RGB32);
    picture.fill(Qt::white);
    picture.setPixel(3, 3, qRgb(200, 200, 200));
    picture.setPixel(4, 3, qRgb(50, 50, 50));
    const PixelContrast::Colors colors = PixelContrast::ofText(picture);
    QCOMPARE(colors.ground, qRgb(255, 255, 255));
    QCOMPARE(colors.ink, qRgb(50, 50, 50));
}

void tst_PixelContrast::changeNeedsEnoughPixels()
{
    QImage before(10, 10, QImage::Format_RGB32);
    before.fill(Qt::white);
    QImage after = before;
    QCOMPARE(PixelContrast::ofChange(before, after, 1), 1.0);
    for (int x = 0; x < 3; ++x) {
        after.setPixel(x, 0, qRgb(0, 0, 0));
    }
    after.setPixel(4, 4, qRgb(200, 200, 200));
    QVERIFY(PixelContrast::ofChange(before, after, 3) > 20);
    QVERIFY(PixelContrast::ofChange(before, after, 4) < 2);
    QCOMPARE(PixelContrast::ofChange(before, after, 5), 1.0);
}

QTEST_APPLESS_MAIN(tst_PixelContrast)
#include "tst_PixelContrast.moc"
