// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportSeries.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

namespace {

const QString Key = QStringLiteral("delayOverTime");

QJsonValue json(const QByteArray& text)
{
    return QJsonDocument::fromJson(text).object();
}

} // namespace

class tst_ReportSeries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsValuesAndGaps();
    void refusesWhatIsNone_data();
    void refusesWhatIsNone();
    void refusesTooMany();
};

void tst_ReportSeries::readsValuesAndGaps()
{
    const QJsonValue value = json(R"({ "stepSeconds": 2, "values": [ 37, null, 38.5 ] })");
    const auto series = ReportSeries::of(Key, value);
    QVERIFY(series);
    QCOMPARE(series->stepSeconds, 2.0);
    QCOMPARE(series->values.size(), std::size_t(3));
    QCOMPARE(series->values[0].value_or(0), 37.0);
    QVERIFY(!series->values[1]);
    QCOMPARE(series->toJson(), value);
}

void tst_ReportSeries::refusesWhatIsNone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("no object") << QByteArray("[]");
    QTest::newRow("no step") << QByteArray(R"({ "values": [ 1 ] })");
    QTest::newRow("step 0") << QByteArray(R"({ "stepSeconds": 0, "values": [ 1 ] })");
    QTest::newRow("huge step") << QByteArray(R"({ "stepSeconds": 1e300, "values": [ 1 ] })");
    QTest::newRow("no values") << QByteArray(R"({ "stepSeconds": 1, "values": [] })");
    QTest::newRow("a text") << QByteArray(R"({ "stepSeconds": 1, "values": [ 1, "<b>" ] })");
    QTest::newRow("a list") << QByteArray(R"({ "stepSeconds": 1, "values": [ [ 1 ] ] })");
    QTest::newRow("huge value") << QByteArray(R"({ "stepSeconds": 1, "values": [ 1e300 ] })");
}

void tst_ReportSeries::refusesWhatIsNone()
{
    QFETCH(QByteArray, text);
    QVERIFY(!ReportSeries::of(Key, json(text)));
    const QJsonValue good = json(R"({ "stepSeconds": 1, "values": [ 1 ] })");
    QVERIFY(ReportSeries::of(Key, good));
    QVERIFY(!ReportSeries::of(QStringLiteral("other"), good));
}

void tst_ReportSeries::refusesTooMany()
{
    QJsonArray values;
    for (std::size_t i = 0; i < ReportSeries::MaxValues; ++i) {
        values.append(1);
    }
    const auto isSeries = [&values] {
        return ReportSeries::of(Key, QJsonObject{{QStringLiteral("stepSeconds"), 1},
                                                 {QStringLiteral("values"), values}})
            .has_value();
    };
    QVERIFY(isSeries());
    values.append(1);
    QVERIFY(!isSeries());
}

QTEST_GUILESS_MAIN(tst_ReportSeries)
#include "tst_ReportSeries.moc"
