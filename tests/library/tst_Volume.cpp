// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/PageTools.h"
#include "widgets/Volume.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QtTest>

namespace {

const QString SliderStyle =
    "QSlider{min-width:328px; max-height:22px; margin-left: 11px;  margin-right: 22px;}"
    "QSlider::groove:horizontal {margin-top:10px; left:11px; right:22px; "
    "background:url(:/Kestrel/Images/groove.png) no-repeat;}"
    "QSlider::sub-page:horizontal{margin-top: 10px; "
    "background: url(:/Kestrel/Images/subpage.png) no-repeat;}"
    "QSlider::handle:horizontal {margin-top: -9px; image: url(:/Kestrel/Images/handle.svg); "
    "width: 22px; height:24px; margin-left: -11px; margin-right: -11px;}";

QString labelStyle()
{
    const QStringList declarations{
        "QLabel { border-width: 1px;", "border-color: #c5c8d0;", "border-style: solid;",
        "border-radius: 2px;",         "max-width: 30px;",       "min-width: 30;",
        "max-height: 18px;",           "font-size: 12px;",       "color: #666666;",
        "line-height: 3.429;}"};
    return declarations.join(QString(29, ' '));
}

// The handle's middle at the two ends, by the margins above.
constexpr int HandleAtStart = 22;
constexpr int HandleAtEnd = 317;

} // namespace

class tst_Volume : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void styleSheets();
    void layout();
    void metaObject();
    void initialValueIsSilentAndShown();
    void range_data();
    void range();
    void setVolumeIsSilent();
    void valueOutsideTheRangeIsShownUnclamped_data();
    void valueOutsideTheRangeIsShownUnclamped();
    void userMovesAreAnnounced();
    void setVolumeInsideTheHandlerDoesNotLoop();
    void draggingAnnouncesEveryValue();
    void disablingDisablesBoth();
    void fillsFromItsStart_data();
    void fillsFromItsStart();
};

void tst_Volume::styleSheets()
{
    const Volume volume(nullptr, 1, false);
    QCOMPARE(volume.styleSheet(), QString("QWidget {height:22px}"));
    QCOMPARE(volume.findChild<QSlider*>()->styleSheet(), SliderStyle);
    QCOMPARE(volume.findChild<QLabel*>()->styleSheet(), labelStyle());
}

void tst_Volume::layout()
{
    const Volume volume(nullptr, 1, false);
    auto* layout = qobject_cast<QHBoxLayout*>(volume.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->alignment(), Qt::AlignRight);
    QCOMPARE(layout->count(), 3);
    auto* slider = qobject_cast<QSlider*>(layout->itemAt(0)->widget());
    QVERIFY(slider);
    QCOMPARE(slider->orientation(), Qt::Horizontal);
    QCOMPARE(layout->itemAt(1)->spacerItem()->sizeHint().width(), 10);
    auto* label = qobject_cast<QLabel*>(layout->itemAt(2)->widget());
    QVERIFY(label);
    QCOMPARE(label->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    for (int i = 0; i < layout->count(); ++i) {
        QCOMPARE(layout->stretch(i), 0);
        QCOMPARE(layout->itemAt(i)->alignment(), Qt::Alignment());
    }
}

void tst_Volume::metaObject()
{
    QCOMPARE(ownMethods(Volume::staticMetaObject),
             QList<QByteArray>({"setVolumeByUser(int)", "onValueChange(int)"}));
    const QMetaMethod announcement = QMetaMethod::fromSignal(&Volume::setVolumeByUser);
    QCOMPARE(announcement.parameterNames(), QList<QByteArray>({"value"}));
}

void tst_Volume::initialValueIsSilentAndShown()
{
    const Volume volume(nullptr, 42, false);
    QCOMPARE(volume.findChild<QSlider*>()->value(), 42);
    QCOMPARE(volume.findChild<QLabel*>()->text(), QString("42"));
}

void tst_Volume::range_data()
{
    QTest::addColumn<bool>("isExtended");
    QTest::addColumn<int>("maximum");
    QTest::newRow("plain") << false << 100;
    QTest::newRow("extended") << true << 150;
}

void tst_Volume::range()
{
    QFETCH(bool, isExtended);
    QFETCH(int, maximum);
    Volume volume(nullptr, 1, isExtended);
    auto* slider = volume.findChild<QSlider*>();
    QCOMPARE(slider->minimum(), 0);
    QCOMPARE(slider->maximum(), maximum);
    QSignalSpy moved(&volume, &Volume::setVolumeByUser);
    QTest::keyClick(slider, Qt::Key_End);
    QCOMPARE(moved.takeFirst().at(0).toInt(), maximum);
    QTest::keyClick(slider, Qt::Key_Home);
    QCOMPARE(moved.takeFirst().at(0).toInt(), 0);
}

void tst_Volume::setVolumeIsSilent()
{
    Volume volume(nullptr, 1, false);
    QSignalSpy moved(&volume, &Volume::setVolumeByUser);
    for (const int value : {0, 37, 100}) {
        volume.setVolume(value);
        QCOMPARE(volume.findChild<QSlider*>()->value(), value);
        QCOMPARE(volume.findChild<QLabel*>()->text(), QString::number(value));
    }
    QCOMPARE(moved.count(), 0);
}

void tst_Volume::valueOutsideTheRangeIsShownUnclamped_data()
{
    QTest::addColumn<bool>("isExtended");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("onSlider");
    QTest::newRow("above 100") << false << 120 << 100;
    QTest::newRow("above 150") << true << 1000 << 150;
    QTest::newRow("below 0") << true << -3 << 0;
    QTest::newRow("120 of 150") << true << 120 << 120;
}

void tst_Volume::valueOutsideTheRangeIsShownUnclamped()
{
    QFETCH(bool, isExtended);
    QFETCH(int, value);
    QFETCH(int, onSlider);
    Volume volume(nullptr, 50, isExtended);
    volume.setVolume(value);
    QCOMPARE(volume.findChild<QSlider*>()->value(), onSlider);
    QCOMPARE(volume.findChild<QLabel*>()->text(), QString::number(value));
}

void tst_Volume::userMovesAreAnnounced()
{
    Volume volume(nullptr, 50, false);
    QSignalSpy moved(&volume, &Volume::setVolumeByUser);
    volume.setVolume(60);
    volume.setVolume(70); // connects once more each time, and must not add up
    QTest::keyClick(volume.findChild<QSlider*>(), Qt::Key_Right);
    QCOMPARE(moved.count(), 1);
    QCOMPARE(moved.at(0).at(0).toInt(), 71);
    QCOMPARE(volume.findChild<QLabel*>()->text(), QString("71"));
}

void tst_Volume::setVolumeInsideTheHandlerDoesNotLoop()
{
    Volume volume(nullptr, 50, false);
    QSignalSpy moved(&volume, &Volume::setVolumeByUser);
    connect(&volume, &Volume::setVolumeByUser, &volume,
            [&volume](int value) { volume.setVolume(value - 1); });
    QTest::keyClick(volume.findChild<QSlider*>(), Qt::Key_Right);
    QCOMPARE(moved.count(), 1);
    QCOMPARE(volume.findChild<QSlider*>()->value(), 50);
}

void tst_Volume::draggingAnnouncesEveryValue()
{
    Volume volume(nullptr, 0, false);
    volume.show();
    QVERIFY(QTest::qWaitForWindowExposed(&volume));
    auto* slider = volume.findChild<QSlider*>();
    QVector<int> values;
    connect(slider, &QSlider::valueChanged, &volume,
            [&values](int value) { values.append(value); });
    QSignalSpy moved(&volume, &Volume::setVolumeByUser);
    const int y = slider->height() / 2;
    QTest::mousePress(slider, Qt::LeftButton, {}, {HandleAtStart, y});
    QVERIFY(slider->isSliderDown());
    for (int x = HandleAtStart; x <= HandleAtEnd; x += 5) {
        QMouseEvent move(QEvent::MouseMove, QPoint(x, y), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(slider, &move);
    }
    QTest::mouseRelease(slider, Qt::LeftButton, {}, {HandleAtEnd, y});
    QVERIFY(values.size() > 10);
    QCOMPARE(moved.count(), values.size());
    for (int i = 0; i < values.size(); ++i) {
        QCOMPARE(moved.at(i).at(0).toInt(), values.at(i));
    }
    QCOMPARE(values.last(), 100);
    QCOMPARE(volume.findChild<QLabel*>()->text(), QString("100"));
}

void tst_Volume::disablingDisablesBoth()
{
    Volume volume(nullptr, 50, false);
    volume.setEnabled(false);
    QVERIFY(!volume.findChild<QSlider*>()->isEnabled());
    QVERIFY(!volume.findChild<QLabel*>()->isEnabled());
    volume.setEnabled(true);
    QVERIFY(volume.findChild<QSlider*>()->isEnabled());
}

void tst_Volume::fillsFromItsStart_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

// In a language that is written from right to left, too, the filled part ends at the handle, and
// the number stands at the right.
void tst_Volume::fillsFromItsStart()
{
    QFETCH(Qt::LayoutDirection, direction);
    QGuiApplication::setLayoutDirection(direction);
    const auto restore = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    Volume volume(nullptr, 25, false);
    volume.show();
    auto* slider = volume.findChild<QSlider*>();
    const QImage picture = slider->grab().toImage();
    const auto greenPixels = [&picture](int from, int to) {
        int count = 0;
        for (int x = from; x < to; ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                const QColor color = picture.pixelColor(x, y);
                count += color.green() > color.red() + 100 ? 1 : 0;
            }
        }
        return count;
    };
    constexpr int Quarter = HandleAtStart + (HandleAtEnd - HandleAtStart) / 4;
    constexpr int HandleWidth = 22;
    QVERIFY(greenPixels(Quarter - HandleWidth / 2, Quarter + HandleWidth / 2) > 20);
    QVERIFY(greenPixels(HandleAtStart, Quarter - HandleWidth) > 50);
    QCOMPARE(greenPixels(Quarter + HandleWidth, picture.width()), 0);
    QVERIFY(volume.findChild<QLabel*>()->x() > slider->geometry().right());
    QTest::keyClick(slider, Qt::Key_Right);
    QCOMPARE(slider->value(), 26);
}

QTEST_MAIN(tst_Volume)
#include "tst_Volume.moc"
