// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/RateSeries.h"

#include <QtTest>

using namespace Platform;

namespace {

QJsonArray valuesOf(const RateSeries& series)
{
    return series.series().toJson().value(QStringLiteral("values")).toArray();
}

} // namespace

class tst_RateSeries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsEachSecond();
    void survivesALongPause();
};

void tst_RateSeries::countsEachSecond()
{
    RateSeries series;
    for (const double second : {0.5, 0.9, 1.0, 1.1, 1.2}) {
        series.add(second);
    }
    QCOMPARE(valuesOf(series), (QJsonArray{2})); // the second one isn't over
    series.add(4.5);
    QCOMPARE(valuesOf(series), (QJsonArray{2, 3, 0, 0}));
}

void tst_RateSeries::survivesALongPause()
{
    RateSeries series;
    series.add(0.1);
    series.add(1e8);
    QCOMPARE(valuesOf(series).size(), TimeSeries::MaxValues);
}

QTEST_GUILESS_MAIN(tst_RateSeries)
#include "tst_RateSeries.moc"
