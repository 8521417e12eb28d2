// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/StallTimeout.h"

#include <QtTest>

using namespace Platform;
using namespace std::chrono_literals;

class tst_StallTimeout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allowsFivePeriodsOrHalfASecond_data();
    void allowsFivePeriodsOrHalfASecond();
    void startsWithoutAPicture();
    void measuresWhereNoRateIsAgreed();
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
}

void tst_StallTimeout::allowsFivePeriodsOrHalfASecond()
{
    QFETCH(double, rate);
    QFETCH(int, allowedMs);
    StallTimeout rule;
    rule.setRate(rate);
    const auto start = StallTimeout::Clock::now();
    rule.frameArrived(start);
    QVERIFY(rule.delivers(start));
    QVERIFY(rule.delivers(start + std::chrono::milliseconds(allowedMs)));
    QVERIFY(!rule.delivers(start + std::chrono::milliseconds(allowedMs + 1)));
}

void tst_StallTimeout::startsWithoutAPicture()
{
    StallTimeout rule;
    rule.setRate(30.0);
    const auto start = StallTimeout::Clock::now();
    QVERIFY(!rule.delivers(start));
    rule.frameArrived(start);
    QVERIFY(rule.delivers(start));
    rule.reset();
    QVERIFY(!rule.delivers(start));
}

void tst_StallTimeout::measuresWhereNoRateIsAgreed()
{
    StallTimeout rule;
    rule.setRate(0.0);
    const auto start = StallTimeout::Clock::now();
    rule.frameArrived(start);
    QVERIFY(rule.allowance() == 500ms);
    rule.frameArrived(start + 400ms);
    QVERIFY(rule.allowance() == 2s);
    QVERIFY(rule.delivers(start + 2400ms));
    QVERIFY(!rule.delivers(start + 2401ms));
}

QTEST_GUILESS_MAIN(tst_StallTimeout)
#include "tst_StallTimeout.moc"
