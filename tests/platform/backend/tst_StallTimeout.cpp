// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/StallTimeout.h"

#include <QtTest>

using namespace Platform;
using namespace std::chrono_literals;

class tst_StallTimeout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allowsFivePeriodsOrHalfASecond_data();
    void allowsFivePeriodsOrHalfASecond();
    void startsWithoutAFrame();
    void measuresIfNoRateIsAgreed();
};

void tst_StallTimeout::allowsFivePeriodsOrHalfASecond_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("allowedMs");
    QTest::newRow("30") << 30.0 << 500;
    QTest::newRow("10") << 10.0 << 500;
    QTest::newRow("5") << 5.0 << 1000;
    QTest::newRow("2") << 2.0 << 2500;
    QTest::newRow("absurd") << 0.001 << 5000;
    QTest::newRow("more absurd") << 1e-300 << 5000;
}

void tst_StallTimeout::allowsFivePeriodsOrHalfASecond()
{
    QFETCH(double, rate);
    QFETCH(int, allowedMs);
    StallTimeout timeout;
    timeout.setRate(rate);
    const auto start = StallTimeout::Clock::now();
    timeout.frameArrived(start);
    QVERIFY(timeout.delivers(start));
    QVERIFY(timeout.delivers(start + std::chrono::milliseconds(allowedMs)));
    QVERIFY(!timeout.delivers(start + std::chrono::milliseconds(allowedMs + 1)));
}

void tst_StallTimeout::startsWithoutAFrame()
{
    StallTimeout timeout;
    timeout.setRate(30.0);
    const auto start = StallTimeout::Clock::now();
    QVERIFY(!timeout.delivers(start));
    timeout.frameArrived(start);
    QVERIFY(timeout.delivers(start));
    timeout.reset();
    QVERIFY(!timeout.delivers(start));
}

void tst_StallTimeout::measuresIfNoRateIsAgreed()
{
    StallTimeout timeout;
    timeout.setRate(0.0);
    const auto start = StallTimeout::Clock::now();
    timeout.frameArrived(start);
    QVERIFY(timeout.duration() == 500ms);
    timeout.frameArrived(start + 400ms);
    QVERIFY(timeout.duration() == 2s);
    QVERIFY(timeout.delivers(start + 2400ms));
    QVERIFY(!timeout.delivers(start + 2401ms));
}

QTEST_GUILESS_MAIN(tst_StallTimeout)
#include "tst_StallTimeout.moc"
