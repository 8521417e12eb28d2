// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/SrvOrder.h"

#include <QMap>
#include <QRandomGenerator>
#include <QtTest>

using namespace Platform;

// The order of servers by RFC 2782.
class tst_SrvOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothing();
    void prioritiesComeInOrder();
    void chanceChoosesByWeight_data();
    void chanceChoosesByWeight();
    void everyRecordIsTried();
    void sharesFollowTheWeights();
};

namespace {

quint32 least(quint32)
{
    return 0;
}

QString targets(const std::vector<SrvRecord>& records)
{
    QString text;
    for (const SrvRecord& record : records) {
        text += record.target;
    }
    return text;
}

SrvRecord record(const char* target, quint16 priority, quint16 weight)
{
    return {QLatin1String(target), 3478, priority, weight};
}

} // namespace

void tst_SrvOrder::nothing()
{
    QVERIFY(SrvOrder::of({}, least).empty());
}

void tst_SrvOrder::prioritiesComeInOrder()
{
    const std::vector<SrvRecord> records = {record("c", 20, 100), record("a", 0, 1),
                                            record("d", 30, 0), record("b", 10, 50)};
    QCOMPARE(targets(SrvOrder::of(records, least)), QStringLiteral("abcd"));
}

void tst_SrvOrder::chanceChoosesByWeight_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("first");
    QTest::newRow("0: the one without weight") << 0 << "z";
    QTest::newRow("1") << 1 << "a";
    QTest::newRow("10") << 10 << "a";
    QTest::newRow("11") << 11 << "b";
    QTest::newRow("30") << 30 << "b";
    QTest::newRow("31") << 31 << "c";
    QTest::newRow("60") << 60 << "c";
}

void tst_SrvOrder::chanceChoosesByWeight()
{
    QFETCH(int, number);
    QFETCH(QString, first);
    const std::vector<SrvRecord> records = {record("a", 0, 10), record("b", 0, 20),
                                            record("c", 0, 30), record("z", 0, 0)};
    bool isFirst = true;
    const auto chance = [&](quint32 most) {
        const bool wasFirst = std::exchange(isFirst, false);
        if (wasFirst) {
            [&] { QCOMPARE(most, quint32(60)); }();
        }
        return wasFirst ? quint32(number) : most;
    };
    QCOMPARE(targets(SrvOrder::of(records, chance)).left(1), first);
}

void tst_SrvOrder::everyRecordIsTried()
{
    const std::vector<SrvRecord> records = {record("a", 1, 65535), record("b", 1, 65535),
                                            record("c", 1, 0), record("d", 0, 0)};
    for (int count = 0; count < 50; ++count) {
        const auto chance = [](quint32 most) {
            return QRandomGenerator::global()->bounded(most + 1);
        };
        QString order = targets(SrvOrder::of(records, chance));
        QVERIFY(order.startsWith(QLatin1Char('d')));
        std::sort(order.begin(), order.end());
        QCOMPARE(order, QStringLiteral("abcd"));
    }
}

void tst_SrvOrder::sharesFollowTheWeights()
{
    const std::vector<SrvRecord> records = {record("a", 0, 10), record("b", 0, 30)};
    QRandomGenerator random(7);
    QMap<QString, int> firsts;
    for (int count = 0; count < 4000; ++count) {
        ++firsts[targets(SrvOrder::of(records, [&random](quint32 most) {
                     return random.bounded(most + 1);
                 })).left(1)];
    }
    const double share = firsts[QStringLiteral("b")] / 4000.0;
    QVERIFY2(share > 0.69 && share < 0.79, qPrintable(QString::number(share))); // 30 of 41
}

QTEST_APPLESS_MAIN(tst_SrvOrder)
#include "tst_SrvOrder.moc"
