// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/DeliveryRule.h"

#include <QtTest>

using namespace Platform;
using namespace std::chrono_literals;

class tst_DeliveryRule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allowsFivePeriodsOrHalfASecond_data();
    void allowsFivePeriodsOrHalfASecond();
    void startsWithoutAPicture();
    void measuresWhereNoRateIsAgreed();
};

void tst_DeliveryRule::allowsFivePeriodsOrHalfASecond_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("allowedMs");
    QTest::newRow("30") << 30.0 << 500;
    QTest::newRow("10") << 10.0 << 500;
    QTest::newRow("5") << 5.0 << 1000;
    QTest::newRow("2") << 2.0 << 2500;
    QTest::newRow("absurd") << 0.001 << 5000;
}

void tst_DeliveryRule::allowsFivePeriodsOrHalfASecond()
{
    QFETCH(double, rate);
    QFETCH(int, allowedMs);
    DeliveryRule rule;
    rule.setRate(rate);
    const auto start = DeliveryRule::Clock::now();
    rule.pictureArrived(start);
    QVERIFY(rule.delivers(start));
    QVERIFY(rule.delivers(start + std::chrono::milliseconds(allowedMs)));
    QVERIFY(!rule.delivers(start + std::chrono::milliseconds(allowedMs + 1)));
}

void tst_DeliveryRule::startsWithoutAPicture()
{
    DeliveryRule rule;
    rule.setRate(30.0);
    const auto start = DeliveryRule::Clock::now();
    QVERIFY(!rule.delivers(start));
    rule.pictureArrived(start);
    QVERIFY(rule.delivers(start));
    rule.reset();
    QVERIFY(!rule.delivers(start));
}

void tst_DeliveryRule::measuresWhereNoRateIsAgreed()
{
    DeliveryRule rule;
    rule.setRate(0.0);
    const auto start = DeliveryRule::Clock::now();
    rule.pictureArrived(start);
    QVERIFY(rule.allowance() == 500ms);
    rule.pictureArrived(start + 400ms);
    QVERIFY(rule.allowance() == 2s);
    QVERIFY(rule.delivers(start + 2400ms));
    QVERIFY(!rule.delivers(start + 2401ms));
}

QTEST_GUILESS_MAIN(tst_DeliveryRule)
#include "tst_DeliveryRule.moc"
