// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/SeriesPlot.h"

#include "host/report/HtmlPage.h"

#include <algorithm>

namespace {

constexpr double Width = 600;
constexpr double LabelRoom = 70; // beside the axis of the values
constexpr double Margin = 10;    // on the other side
constexpr double Gap = 5;        // between axis and label
constexpr double Top = 8;
constexpr double Bottom = 72;
constexpr double Height = 90;
constexpr double FloorDb = -60;

QString number(double value)
{
    return QString::number(value, 'f', 1);
}

// The ends of the time axis: it runs in the direction in which the page is read.
struct TimeAxis
{
    explicit TimeAxis(SeriesPlot::Direction direction)
        : isForward(direction == SeriesPlot::Direction::LeftToRight),
          begin(isForward ? LabelRoom : Width - LabelRoom),
          end(isForward ? Width - Margin : Margin)
    {
    }

    bool isForward;
    double begin;
    double end;
};

// What the plot shows from bottom to top.
struct Range
{
    double least = 0;
    double most = 0;
};

Range measuredRange(const ReportSeries& series)
{
    Range range{0, 0};
    bool isFirst = true;
    for (const std::optional<double>& value : series.values) {
        if (value) {
            range.least = isFirst ? *value : std::min(range.least, *value);
            range.most = isFirst ? *value : std::max(range.most, *value);
            isFirst = false;
        }
    }
    return range;
}

Range shownRange(const Range& measured, Figures::Unit unit)
{
    if (unit == Figures::Unit::Decibels) {
        return {std::min(FloorDb, measured.least), std::max(0.0, measured.most)};
    }
    const double least = std::min(0.0, measured.least);
    return {least, std::max(measured.most, least + 1)};
}

// Lines through the values; a gap where none was measured, a dot where one stands alone.
QString lines(const ReportSeries& series, const Range& range, const TimeAxis& axis)
{
    const double steps = std::max<double>(1, static_cast<double>(series.values.size()) - 1);
    const auto x = [&axis, steps](std::size_t i) {
        return axis.begin + (axis.end - axis.begin) * static_cast<double>(i) / steps;
    };
    QString path;
    for (std::size_t i = 0; i < series.values.size(); ++i) {
        if (!series.values[i]) {
            continue;
        }
        const bool continues = i > 0 && series.values[i - 1];
        const bool isAlone = !continues && (i + 1 == series.values.size() || !series.values[i + 1]);
        const double y = Bottom - (*series.values[i] - range.least) / (range.most - range.least) *
                                      (Bottom - Top);
        path += QLatin1Char(continues ? 'L' : 'M') + number(x(i)) + QLatin1Char(' ') + number(y) +
                (isAlone ? QStringLiteral("h0") : QString());
    }
    return path;
}

QString label(double x, double y, const char* anchor, const QString& text)
{
    return QStringLiteral("<text x=\"%1\" y=\"%2\" text-anchor=\"%3\">%4</text>")
        .arg(number(x), number(y), QLatin1String(anchor), text.toHtmlEscaped());
}

QString seconds(double value)
{
    return Figures::toText(value, Figures::Unit::Seconds);
}

} // namespace

QString SeriesPlot::toHtml(const ReportSeries& series, const QString& caption, Direction direction)
{
    const Figures::Unit unit = series.kind->unit;
    const Range measured = measuredRange(series);
    const Range range = shownRange(measured, unit);
    const TimeAxis axis(direction);
    const char* before = axis.isForward ? "end" : "start"; // a text that ends where it stands
    const char* after = axis.isForward ? "start" : "end";
    const double labels = axis.begin + (axis.isForward ? -Gap : Gap);
    const double length = series.stepSeconds * (static_cast<double>(series.values.size()) - 1);
    const QString values = Figures::toText(measured.least, unit) + QStringLiteral(" – ") +
                           Figures::toText(measured.most, unit);
    return QStringLiteral("<figure class=\"plot\"><figcaption><bdi>%1</bdi>: "
                          "<bdi dir=\"ltr\">%2</bdi></figcaption>\n"
                          "<svg viewBox=\"0 0 %3 %4\" role=\"img\" aria-label=\"%1\">")
               .arg(HtmlPage::escaped(caption), HtmlPage::escaped(values), number(Width),
                    number(Height)) +
           QStringLiteral("<path class=\"axes\" d=\"M%1 %2V%3H%4\"/>")
               .arg(number(axis.begin), number(Top), number(Bottom), number(axis.end)) +
           QStringLiteral("<path d=\"%1\"/>").arg(lines(series, range, axis)) +
           label(labels, Top + Gap, before, Figures::toText(range.most, unit)) +
           label(labels, Bottom, before, Figures::toText(range.least, unit)) +
           label(axis.begin, Height - Gap, after, seconds(0)) +
           label(axis.end, Height - Gap, before, seconds(length)) +
           QStringLiteral("</svg></figure>\n");
}
