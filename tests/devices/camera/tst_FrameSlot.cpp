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

QImage frame(QRgb color = qRgb(200, 0, 0))
{
    QImage result(Size, QImage::Format_RGB32);
    result.fill(color);
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
    void waitsLongerForSlowCameras();
    void knowsAStallFromALateStart();
    void knowsBlackness();
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
    slot.put(generation, frame(qRgb(1, 2, 3)), Size);
    slot.put(generation, frame(qRgb(4, 5, 6)), Size);
    QCOMPARE(slot.newest().pixel(0, 0), qRgb(4, 5, 6));
    QVERIFY(slot.delivers());
    QCOMPARE(slot.figures().value(QLatin1String("pictures")).toInt(), 2);
}

void tst_FrameSlot::notifiesOnceUntilHeard()
{
    FrameSlot slot;
    const int generation = slot.open();
    QVERIFY(slot.put(generation, frame(), Size));
    QVERIFY(!slot.put(generation, frame(), Size));
    slot.notificationArrived();
    QVERIFY(slot.put(generation, frame(), Size));
}

void tst_FrameSlot::refusesOtherGenerations()
{
    FrameSlot slot;
    QVERIFY(!slot.put(0, frame(), Size));
    const int first = slot.open();
    const int second = slot.open();
    QVERIFY(first != second);
    QVERIFY(!slot.put(first, frame(), Size));
    QVERIFY(slot.newest().isNull());
    slot.put(second, frame(), Size);
    slot.interrupt(first);
    QVERIFY(!slot.newest().isNull());
    slot.close();
    QVERIFY(slot.newest().isNull());
    QVERIFY(!slot.delivers());
    QVERIFY(!slot.put(second, frame(), Size));
    QVERIFY(slot.newest().isNull());
}

void tst_FrameSlot::forgetsWhenInterrupted()
{
    FrameSlot slot;
    const int generation = slot.open();
    slot.put(generation, frame(), Size);
    slot.interrupt(generation);
    QVERIFY(slot.newest().isNull());
    QVERIFY(!slot.delivers());
    slot.put(generation, frame(), Size);
    QVERIFY(slot.delivers());
    QCOMPARE(slot.figures().value(QLatin1String("pictures")).toInt(), 2);
}

void tst_FrameSlot::knowsSilence()
{
    FrameSlot::Clock::time_point now;
    FrameSlot slot([&now] { return now; });
    const int generation = slot.open();
    slot.setRate(generation, 30.0);
    now += 1h;
    QVERIFY(!slot.isSilent()); // the stream doesn't run yet
    slot.expectFrames(generation + 1);
    now += 1h;
    QVERIFY(!slot.isSilent()); // another stream runs
    slot.expectFrames(generation);
    now += 500ms;
    QVERIFY(!slot.isSilent()); // a frame may still come
    now += 1ms;
    QVERIFY(slot.isSilent());
    slot.put(generation, frame(), Size);
    QVERIFY(!slot.isSilent());
    now += 501ms;
    QVERIFY(slot.isSilent());
    slot.interrupt(generation);
    QVERIFY(!slot.isSilent()); // the stream ended
}

void tst_FrameSlot::waitsLongerForSlowCameras()
{
    FrameSlot::Clock::time_point now;
    FrameSlot slot([&now] { return now; });
    const int first = slot.open();
    slot.setRate(first, 2.0);
    slot.put(first, frame(), Size);
    now += 2500ms;
    QVERIFY(slot.delivers());
    now += 1ms;
    QVERIFY(!slot.delivers());

    const int second = slot.open(); // the rate of the camera before is forgotten
    slot.setRate(first, 2.0);       // and comes too late
    slot.put(second, frame(), Size);
    now += 501ms;
    QVERIFY(!slot.delivers());
}

void tst_FrameSlot::knowsAStallFromALateStart()
{
    FrameSlot::Clock::time_point now;
    FrameSlot slot([&now] { return now; });
    const int generation = slot.open();
    slot.expectFrames(generation);
    now += 3s;
    QVERIFY(slot.isSilent());
    QVERIFY(!slot.hasStalled()); // the first frame may still come
    slot.put(generation, frame(), Size);
    QVERIFY(!slot.hasStalled());
    now += 3s;
    QVERIFY(slot.hasStalled());
    slot.interrupt(generation);
    QVERIFY(!slot.hasStalled());
}

void tst_FrameSlot::knowsBlackness()
{
    FrameSlot::Clock::time_point now;
    FrameSlot slot([&now] { return now; });
    const int generation = slot.open();
    const auto put = [&](QRgb color, std::chrono::milliseconds after) {
        now += after;
        slot.put(generation, frame(color), Size);
        return slot.isBlack();
    };
    const QRgb noise = qRgb(9, 9, 9);
    QVERIFY(!put(noise, 0ms));
    QVERIFY(!put(noise, 1999ms));
    QVERIFY(put(noise, 1ms));
    QVERIFY(!put(qRgb(90, 90, 90), 10ms));
    QVERIFY(!put(noise, 3000ms)); // black from now on
    QVERIFY(put(noise, 2000ms));
    slot.interrupt(generation);
    QVERIFY(!slot.isBlack());
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
        if (!seen.isNull()) { // never half of one frame and half of another
            QCOMPARE(seen.pixel(0, 0), seen.pixel(Size.width() - 1, Size.height() - 1));
        }
        slot.notificationArrived();
    }
    camera.join();
}

QTEST_GUILESS_MAIN(tst_FrameSlot)
#include "tst_FrameSlot.moc"
