// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/ProbeWindow.h"

#include <QTest>
#include <algorithm>
#include <vector>

using namespace Platform;
using namespace std::chrono_literals;

// Times are made up: the window has no clock.
class tst_ProbeWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingSent();
    void nothingAnswered();
    void lossCountsOnlyProbesThatAreDue();
    void loss_data();
    void loss();
    void delayIsTheMedian_data();
    void delayIsTheMedian();
    void delayIsCutOff();
    void percentiles_data();
    void percentiles();
    void answersThatDontCount();
    void answerAtTheDeadlineCounts();
    void oldProbesLeaveTheWindow();
    void oldDelaysLeaveTheWindow();
    void jitter();
    void jitterSkipsLostProbes();
};

namespace {

constexpr ProbeWindow::Time Interval = 100ms;

// Sends a probe every 100 ms from 0 on and answers each after its round trip; a negative one means
// never.
void run(ProbeWindow& window, const std::vector<ProbeWindow::Time>& roundTrips)
{
    ProbeWindow::Time sentAt = 0ms;
    for (const ProbeWindow::Time roundTrip : roundTrips) {
        const int number = window.addProbe(sentAt);
        if (roundTrip >= 0ms) {
            QVERIFY(window.addAnswer(number, sentAt + roundTrip));
        }
        sentAt += Interval;
    }
}

} // namespace

void tst_ProbeWindow::nothingSent()
{
    ProbeWindow window;
    const NetworkFigures figures = window.figures(10s);
    QCOMPARE(figures.delayMs, -1);
    QCOMPARE(figures.lossPercent, 0);
    QCOMPARE(figures.jitterMs, 0);
    QCOMPARE(figures.sent, 0);
    QCOMPARE(figures.answered, 0);
}

void tst_ProbeWindow::nothingAnswered()
{
    ProbeWindow window;
    run(window, std::vector<ProbeWindow::Time>(30, -1ms));
    const NetworkFigures figures = window.figures(3s);
    QCOMPARE(figures.delayMs, -1);
    QCOMPARE(figures.lossPercent, 100);
    QCOMPARE(figures.sent, 30);
    QCOMPARE(figures.answered, 0);
}

void tst_ProbeWindow::lossCountsOnlyProbesThatAreDue()
{
    ProbeWindow window;
    window.addProbe(0ms);
    QCOMPARE(window.figures(2s).lossPercent, 0); // may still come
    QCOMPARE(window.figures(2s + 1us).lossPercent, 100);

    // An answered one counts no sooner than a lost one, or the first seconds would look too good.
    const int second = window.addProbe(1s);
    QVERIFY(window.addAnswer(second, 1010ms));
    QCOMPARE(window.figures(2500ms).lossPercent, 100);
    QCOMPARE(window.figures(3s + 1us).lossPercent, 50);
}

void tst_ProbeWindow::loss_data()
{
    QTest::addColumn<int>("lost");
    QTest::addColumn<int>("sent");
    QTest::addColumn<int>("percent");
    QTest::newRow("none") << 0 << 30 << 0;
    QTest::newRow("one of thirty") << 1 << 30 << 3;
    QTest::newRow("30 %") << 9 << 30 << 30;
    QTest::newRow("70 %") << 21 << 30 << 70;
    QTest::newRow("rounded down") << 22 << 30 << 73;
    QTest::newRow("rounded up") << 20 << 30 << 67;
    QTest::newRow("half a percent is rounded up") << 1 << 8 << 13;
    QTest::newRow("all") << 30 << 30 << 100;
}

void tst_ProbeWindow::loss()
{
    QFETCH(int, lost);
    QFETCH(int, sent);
    ProbeWindow window;
    std::vector<ProbeWindow::Time> roundTrips(size_t(sent), 20ms);
    std::fill_n(roundTrips.begin(), lost, -1ms);
    run(window, roundTrips);
    const ProbeWindow::Time allAreDue = (sent - 1) * Interval + ProbeWindow::Deadline + 1us;
    const NetworkFigures figures = window.figures(allAreDue);
    QTEST(figures.lossPercent, "percent");
}

void tst_ProbeWindow::delayIsTheMedian_data()
{
    using Times = std::vector<int>;
    QTest::addColumn<Times>("roundTripsMs");
    QTest::addColumn<int>("delayMs");
    QTest::newRow("one") << Times{37} << 37;
    QTest::newRow("odd, any order") << Times{90, 10, 20} << 20;
    QTest::newRow("even: between the middle two") << Times{10, 20, 40, 900} << 30;
    QTest::newRow("one outlier doesn't show") << Times{20, 20, 20, 20, 1900} << 20;
    QTest::newRow("lost ones don't count") << Times{-1, 500, -1, -1, 500} << 500;
    QTest::newRow("no time at all") << Times{0, 0, 0} << 0;
}

void tst_ProbeWindow::delayIsTheMedian()
{
    QFETCH(std::vector<int>, roundTripsMs);
    std::vector<ProbeWindow::Time> roundTrips;
    for (const int ms : roundTripsMs) {
        roundTrips.push_back(std::chrono::milliseconds(ms));
    }
    ProbeWindow window;
    run(window, roundTrips);
    QTEST(window.figures(3s).delayMs, "delayMs");
}

void tst_ProbeWindow::delayIsCutOff()
{
    ProbeWindow window;
    QVERIFY(window.addAnswer(window.addProbe(0ms), 499999us));
    QCOMPARE(window.figures(1s).delayMs, 499);
    QVERIFY(window.addAnswer(window.addProbe(1s), 1s + 500001us));
    QCOMPARE(window.figures(2s).delayMs, 500);
}

void tst_ProbeWindow::percentiles_data()
{
    QTest::addColumn<int>("count"); // of round trips of 1 ms, 2 ms, 3 ms, ...
    QTest::addColumn<int>("low");
    QTest::addColumn<int>("high");
    QTest::newRow("none") << 0 << -1 << -1;
    QTest::newRow("one") << 1 << 1 << 1;
    QTest::newRow("ten") << 10 << 1 << 10;
    QTest::newRow("twenty") << 20 << 1 << 19;
    QTest::newRow("forty") << 40 << 2 << 38;
}

void tst_ProbeWindow::percentiles()
{
    QFETCH(int, count);
    std::vector<ProbeWindow::Time> roundTrips;
    for (int i = count; i > 0; --i) {
        roundTrips.push_back(std::chrono::milliseconds(i));
    }
    ProbeWindow window;
    run(window, roundTrips);
    const NetworkFigures figures = window.figures(4900ms);
    QTEST(figures.delay5Ms, "low");
    QTEST(figures.delay95Ms, "high");
}

void tst_ProbeWindow::answersThatDontCount()
{
    ProbeWindow window;
    const int number = window.addProbe(0ms);
    QVERIFY(!window.addAnswer(number + 1, 10ms)); // never sent
    QVERIFY(window.addAnswer(number, 20ms));
    QVERIFY(!window.addAnswer(number, 900ms)); // a second time
    const int late = window.addProbe(1s);
    QVERIFY(!window.addAnswer(late, 3s + 1us));
    const NetworkFigures figures = window.figures(4s);
    QCOMPARE(figures.delayMs, 20);
    QCOMPARE(figures.answered, 1);
    QCOMPARE(figures.sent, 2);
    QCOMPARE(figures.lossPercent, 50);
}

void tst_ProbeWindow::answerAtTheDeadlineCounts()
{
    ProbeWindow window;
    QVERIFY(window.addAnswer(window.addProbe(0ms), ProbeWindow::Deadline));
    QCOMPARE(window.figures(3s).delayMs, 2000);
    QCOMPARE(window.figures(3s).lossPercent, 0);
}

void tst_ProbeWindow::oldProbesLeaveTheWindow()
{
    ProbeWindow window;
    window.addProbe(0ms); // lost
    QVERIFY(window.addAnswer(window.addProbe(100ms), 110ms));
    QCOMPARE(window.figures(4999ms).sent, 2);
    QCOMPARE(window.figures(4999ms).lossPercent, 50);
    QCOMPARE(window.figures(5s).sent, 1);
    QCOMPARE(window.figures(5s).lossPercent, 0);
    QCOMPARE(window.figures(5100ms).sent, 0);
}

void tst_ProbeWindow::oldDelaysLeaveTheWindow()
{
    ProbeWindow window;
    run(window, {10ms, 10ms, 10ms});
    QVERIFY(window.addAnswer(window.addProbe(4s), 4700ms));
    QCOMPARE(window.figures(4900ms).delayMs, 10);
    QCOMPARE(window.figures(5500ms).delayMs, 700);
    QCOMPARE(window.figures(9s).delayMs, -1);
}

void tst_ProbeWindow::jitter()
{
    ProbeWindow window;
    run(window, {100ms, 260ms});
    QCOMPARE(window.figures(1s).jitterMs, 10); // 160 / 16

    ProbeWindow third;
    run(third, {100ms, 260ms, 100ms});
    QCOMPARE(third.figures(1s).jitterMs, 19); // 10 + (160 - 10) / 16 = 19.4

    ProbeWindow steady;
    run(steady, std::vector<ProbeWindow::Time>(40, 500ms));
    QCOMPARE(steady.figures(4s).jitterMs, 0);

    // Round trips that change by 32 ms each time have that jitter in the end.
    std::vector<ProbeWindow::Time> swaying;
    for (int pair = 0; pair < 100; ++pair) {
        swaying.push_back(100ms);
        swaying.push_back(132ms);
    }
    ProbeWindow settled;
    run(settled, swaying);
    QCOMPARE(settled.figures(20s).jitterMs, 32);
}

void tst_ProbeWindow::jitterSkipsLostProbes()
{
    ProbeWindow window;
    run(window, {100ms, -1ms, -1ms, 260ms});
    QCOMPARE(window.figures(1s).jitterMs, 10);
}

QTEST_GUILESS_MAIN(tst_ProbeWindow)
#include "tst_ProbeWindow.moc"
