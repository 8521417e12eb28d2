// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/NetworkProbe.h"
#include "platform/backend/NetworkSeries.h"

#include <QtTest>

using namespace Platform;

class tst_NetworkSeries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsToTheFigures();
    void hasNothingWithoutServer();
};

void tst_NetworkSeries::addsToTheFigures()
{
    NetworkSeries series;
    NetworkFigures figures;
    figures.delayMs = 37;
    figures.jitterMs = 2;
    figures.lossPercent = 1;
    series.add(figures);
    figures.delayMs = NetworkLimits::NotMeasured;
    figures.lossPercent = 100;
    QJsonObject json = series.add(figures);
    const auto values = [&json](const char* key) {
        return json.take(QLatin1String(key)).toObject().value(QStringLiteral("values")).toArray();
    };
    QCOMPARE(values("delayOverTime"), (QJsonArray{37, QJsonValue()}));
    QCOMPARE(values("jitterOverTime"), (QJsonArray{2, QJsonValue()}));
    QCOMPARE(values("lossOverTime"), (QJsonArray{1, 100}));
    QCOMPARE(json, toJson(figures));
}

void tst_NetworkSeries::hasNothingWithoutServer()
{
    NetworkSeries series;
    NetworkFigures figures;
    figures.delayMs = 0;
    figures.problem = NetworkProblem::NoServer;
    QCOMPARE(series.add(figures), toJson(figures));
}

QTEST_GUILESS_MAIN(tst_NetworkSeries)
#include "tst_NetworkSeries.moc"
