// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FramePool.h"
#include "platform/devices/camera/FrameSlot.h"

#include <QtTest>
#include <optional>
#include <thread>

using namespace Platform;
using namespace std::chrono_literals;

namespace {

const QSize Size(32, 16);

QImage picture(QRgb colour = qRgb(200, 0, 0))
{
    QImage result(Size, QImage::Format_RGB32);
    result.fill(colour);
    return result;
}

} // namespace

class tst_FrameSlot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheNewest();
    void notifiesOnceUntilHeard();
    void refusesOtherGenerations();
    void forgetsWhenInterrupted();
    void knowsSilence();
    void usesMemoryAgain();
    void survivesItsPool();
    void isSafeAcrossThreads();
};

void tst_FrameSlot::showsTheNewest()
{
    FrameSlot slot;
    const int generation = slot.open();
    QVERIFY(slot.newest().isNull());
    QVERIFY(!slot.delivers());
    slot.put(generation, picture(qRgb(1, 2, 3)), Size);
    slot.put(generation, picture(qRgb(4, 5, 6)), Size);
    QCOMPARE(slot.newest().pixel(0, 0), qRgb(4, 5, 6));
    QVERIFY(slot.delivers());
    QCOMPARE(slot.figures().value(QLatin1String("pictures")).toInt(), 2);
}

void tst_FrameSlot::notifiesOnceUntilHeard()
{
    FrameSlot slot;
    const int generation = slot.open();
    QVERIFY(slot.put(generation, picture(), Size));
    QVERIFY(!slot.put(generation, picture(), Size));
    slot.notificationArrived();
    QVERIFY(slot.put(generation, picture(), Size));
}

void tst_FrameSlot::refusesOtherGenerations()
{
    FrameSlot slot;
    QVERIFY(!slot.put(0, picture(), Size));
    const int first = slot.open();
    const int second = slot.open();
    QVERIFY(first != second);
    QVERIFY(!slot.put(first, picture(), Size));
    QVERIFY(slot.newest().isNull());
    slot.put(second, picture(), Size);
    slot.interrupt(first);
    QVERIFY(!slot.newest().isNull());
    slot.close();
    QVERIFY(slot.newest().isNull());
    QVERIFY(!slot.delivers());
    QVERIFY(!slot.put(second, picture(), Size));
    QVERIFY(slot.newest().isNull());
}

void tst_FrameSlot::forgetsWhenInterrupted()
{
    FrameSlot slot;
    const int generation = slot.open();
    slot.put(generation, picture(), Size);
    slot.interrupt(generation);
    QVERIFY(slot.newest().isNull());
    QVERIFY(!slot.delivers());
    slot.put(generation, picture(), Size);
    QVERIFY(slot.delivers());
    QCOMPARE(slot.figures().value(QLatin1String("pictures")).toInt(), 2);
}

void tst_FrameSlot::knowsSilence()
{
    FrameSlot slot;
    const int generation = slot.open();
    slot.setRate(generation, 30.0);
    const auto now = FrameSlot::Clock::now();
    QVERIFY(!slot.isSilent(now));        // it may still come
    QVERIFY(slot.isSilent(now - 600ms)); // it should have come
    slot.put(generation, picture(), Size);
    QVERIFY(!slot.isSilent(now - 600ms));
}

void tst_FrameSlot::usesMemoryAgain()
{
    FramePool pool;
    std::optional<QImage> first = pool.take(Size);
    const uchar* const memory = first->constBits();
    const QImage second = pool.take(Size);
    QVERIFY(second.constBits() != memory);
    first.reset();
    QCOMPARE(pool.take(Size).constBits(), memory);
}

void tst_FrameSlot::survivesItsPool()
{
    auto pool = std::make_unique<FramePool>();
    QImage kept = pool->take(Size);
    pool.reset();
    kept.fill(Qt::red);
    QCOMPARE(kept.pixel(3, 3), qRgb(255, 0, 0));
}

void tst_FrameSlot::isSafeAcrossThreads()
{
    constexpr int Count = 2000;
    FrameSlot slot;
    const int generation = slot.open();
    std::thread camera([&slot, generation] {
        FramePool pool;
        for (int i = 0; i < Count; ++i) {
            QImage next = pool.take(Size);
            next.fill(qRgb(i % 256, i % 256, i % 256));
            slot.put(generation, next, Size);
        }
    });
    while (slot.figures().value(QLatin1String("pictures")).toInt() < Count) {
        const QImage seen = slot.newest();
        if (!seen.isNull()) { // whole, whatever was written meanwhile
            QCOMPARE(seen.pixel(0, 0), seen.pixel(Size.width() - 1, Size.height() - 1));
        }
        slot.notificationArrived();
    }
    camera.join();
}

QTEST_GUILESS_MAIN(tst_FrameSlot)
#include "tst_FrameSlot.moc"
