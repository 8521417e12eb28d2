// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/SeriesPlot.h"

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QtTest>

using SeriesPlot::Direction;

namespace {

using Values = std::vector<std::optional<double>>;

QString plot(const Values& values, Direction direction = Direction::LeftToRight,
             const char* key = "delayOverTime")
{
    ReportSeries series;
    series.kind = ReportSeries::kindOf(QLatin1String(key));
    series.values = values;
    return SeriesPlot::toHtml(series, QStringLiteral("A <b>caption</b>"), direction);
}

// What the line of the values is made of, without the axes.
QString lineOf(const QString& html)
{
    const QRegularExpression line(QStringLiteral("<path d=\"([^\"]*)\"/>"));
    return line.match(html).captured(1);
}

double firstX(const QString& html)
{
    return lineOf(html).mid(1).section(QLatin1Char(' '), 0, 0).toDouble();
}

} // namespace

class tst_SeriesPlot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isWellFormed();
    void drawsLinesGapsAndDots();
    void goesAsThePageIsRead();
    void tellsTheRange();
    void staysInItsFrame_data();
    void staysInItsFrame();
};

void tst_SeriesPlot::isWellFormed()
{
    const QString html = plot({1, 2, 3});
    QXmlStreamReader reader(html);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QVERIFY(html.contains(QLatin1String("A &lt;b&gt;caption")));
    for (const char* word : {"<b>", "<script", "href", "style=", "http"}) {
        QVERIFY2(!html.contains(QLatin1String(word)), word);
    }
}

void tst_SeriesPlot::drawsLinesGapsAndDots()
{
    QCOMPARE(lineOf(plot({1, 2, 3})).count(QLatin1Char('L')), 2);
    const QString broken = lineOf(plot({1, 2, {}, 3, {}, 4, 5}));
    QCOMPARE(broken.count(QLatin1Char('M')), 3);
    QCOMPARE(broken.count(QLatin1Char('L')), 2);
    QCOMPARE(broken.count(QLatin1Char('h')), 1);
    QCOMPARE(lineOf(plot({{}, {}})), QString());
}

void tst_SeriesPlot::goesAsThePageIsRead()
{
    const Values values = {1, 2, 3};
    QVERIFY(firstX(plot(values)) < 100);
    QVERIFY(firstX(plot(values, Direction::RightToLeft)) > 500);
}

void tst_SeriesPlot::tellsTheRange()
{
    const QString html = plot({37, 912, 40});
    QVERIFY2(html.contains(QStringLiteral("37 ms – 912 ms")), qPrintable(html));
    QVERIFY(html.contains(QLatin1String(">2 s<")));
    QVERIFY(plot({-30, -20}, Direction::LeftToRight, "levelOverTime")
                .contains(QLatin1String(">-60 dB<")));
}

void tst_SeriesPlot::staysInItsFrame_data()
{
    QTest::addColumn<double>("value");
    for (const double value : {0.0, -1e9, 1e9, 0.001, -200.0}) {
        QTest::newRow(qPrintable(QString::number(value))) << value;
    }
}

void tst_SeriesPlot::staysInItsFrame()
{
    QFETCH(double, value);
    for (const char* key : {"delayOverTime", "levelOverTime"}) {
        const QString line = lineOf(plot({value, 5, value}, Direction::LeftToRight, key));
        QRegularExpression point(QStringLiteral("[ML]([0-9.-]+) ([0-9.-]+)"));
        int points = 0;
        for (auto it = point.globalMatch(line); it.hasNext(); ++points) {
            const QRegularExpressionMatch match = it.next();
            const double y = match.captured(2).toDouble();
            QVERIFY2(y >= 0 && y <= 90, qPrintable(line));
        }
        QCOMPARE(points, 3);
    }
}

QTEST_GUILESS_MAIN(tst_SeriesPlot)
#include "tst_SeriesPlot.moc"
