// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/TimeSeries.h"

#include <QtTest>

using Platform::TimeSeries;

class tst_TimeSeries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsValuesAndGaps();
    void keepsTheNewest();
};

void tst_TimeSeries::keepsValuesAndGaps()
{
    TimeSeries series;
    QVERIFY(series.isEmpty());
    series.add(37);
    series.addGap();
    series.add(-3.5);
    QVERIFY(!series.isEmpty());
    const QJsonObject json = series.toJson();
    QCOMPARE(json.value(QStringLiteral("stepSeconds")), QJsonValue(1));
    QCOMPARE(json.value(QStringLiteral("values")), QJsonValue(QJsonArray{37, QJsonValue(), -3.5}));
}

void tst_TimeSeries::keepsTheNewest()
{
    TimeSeries series;
    for (int i = 0; i <= TimeSeries::MaxValues; ++i) {
        series.add(i);
    }
    const QJsonArray values = series.toJson().value(QStringLiteral("values")).toArray();
    QCOMPARE(values.size(), TimeSeries::MaxValues);
    QCOMPARE(values.first(), QJsonValue(1));
    QCOMPARE(values.last(), QJsonValue(TimeSeries::MaxValues));
}

QTEST_GUILESS_MAIN(tst_TimeSeries)
#include "tst_TimeSeries.moc"
