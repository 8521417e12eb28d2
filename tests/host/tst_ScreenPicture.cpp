// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/ScreenPicture.h"

#include <QPainter>
#include <QtTest>

namespace {

constexpr QSize PartSize(120, 60);

QImage balloon(const QString& text, double opacity)
{
    QImage image(PartSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(opacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(35, 35, 35));
    painter.drawRoundedRect(image.rect(), 6, 6);
    painter.setOpacity(1);
    painter.setPen(Qt::white);
    painter.drawText(image.rect(), Qt::AlignCenter, text);
    return image;
}

QImage screenWith(const QImage& part, const QPoint& place)
{
    QImage screen(800, 600, QImage::Format_RGB32);
    screen.fill(Qt::white);
    QPainter painter(&screen);
    painter.fillRect(QRect(400, 0, 400, 600), QColor(90, 110, 130));
    painter.drawText(QPoint(20, 500), QStringLiteral("Something else that is on this screen"));
    painter.drawImage(place, part);
    return screen;
}

} // namespace

class tst_ScreenPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void partIsFound_data();
    void partIsFound();
    void partThatIsNotThere();
    void partThatIsLargerThanTheScreen();
    void oneOfTwoThatLookAlike();
};

void tst_ScreenPicture::partIsFound_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<double>("opacity");
    QTest::newRow("where it is expected") << QPoint(100, 100) << 1.0;
    QTest::newRow("beside it") << QPoint(101, 99) << 1.0;
    QTest::newRow("far from it") << QPoint(650, 530) << 1.0;
    QTest::newRow("in a corner") << QPoint(0, 0) << 1.0;
    QTest::newRow("what is below it shines through") << QPoint(340, 200) << 0.85;
}

void tst_ScreenPicture::partIsFound()
{
    QFETCH(QPoint, place);
    QFETCH(double, opacity);
    const QImage part = balloon(QStringLiteral("A balloon"), opacity);
    const auto found = ScreenPicture::find(screenWith(part, place), part, QPoint(100, 100));
    QVERIFY(found);
    QCOMPARE(*found, place);
}

void tst_ScreenPicture::partThatIsNotThere()
{
    const QImage part = balloon(QStringLiteral("A balloon"), 1);
    QImage screen = screenWith(part, QPoint(-500, -500));
    QVERIFY(!ScreenPicture::find(screen, part, QPoint(100, 100)));
}

void tst_ScreenPicture::partThatIsLargerThanTheScreen()
{
    const QImage part = balloon(QStringLiteral("A balloon"), 1);
    QVERIFY(!ScreenPicture::find(part.copy(0, 0, 50, 50), part, QPoint()));
}

void tst_ScreenPicture::oneOfTwoThatLookAlike()
{
    const QImage part = balloon(QStringLiteral("A balloon"), 1);
    QImage screen = screenWith(part, QPoint(200, 300));
    QPainter(&screen).drawImage(QPoint(200, 100), balloon(QStringLiteral("B ballast"), 1));
    const auto found = ScreenPicture::find(screen, part, QPoint(200, 100));
    QVERIFY(found);
    QCOMPARE(*found, QPoint(200, 300));
}

QTEST_MAIN(tst_ScreenPicture)
#include "tst_ScreenPicture.moc"
