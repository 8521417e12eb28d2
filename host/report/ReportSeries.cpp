// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportSeries.h"

#include "platform/backend/TimeSeries.h"

#include <QJsonArray>
#include <algorithm>
#include <cmath>

namespace {

using Figures::Unit;
namespace Keys = Platform::SeriesKeys;

constexpr ReportSeries::Kind Kinds[] = {
    {Keys::Delay, "ID_Host_Figure_Delay", Unit::Ms},
    {Keys::Jitter, "ID_Host_Figure_Jitter", Unit::Ms},
    {Keys::Loss, "ID_Host_Figure_Loss", Unit::Percent},
    {Keys::Rate, "ID_Host_Figure_Rate", Unit::PerSecond},
    {Keys::Level, "ID_Host_Figure_Level", Unit::Decibels},
};

constexpr double LeastStep = 0.01;
constexpr double LongestStep = 3600;
constexpr double Largest = 1e9;

} // namespace

const ReportSeries::Kind* ReportSeries::kindOf(const QString& key)
{
    const auto* const found =
        std::find_if(std::begin(Kinds), std::end(Kinds),
                     [&key](const Kind& kind) { return key == QLatin1String(kind.key); });
    return found == std::end(Kinds) ? nullptr : found;
}

std::optional<ReportSeries> ReportSeries::of(const QString& key, const QJsonValue& value)
{
    ReportSeries series;
    series.kind = kindOf(key);
    series.stepSeconds = value[QLatin1String(Keys::StepSeconds)].toDouble();
    const QJsonArray values = value[QLatin1String(Keys::Values)].toArray();
    const bool isSeries = series.kind && series.stepSeconds >= LeastStep &&
                          series.stepSeconds <= LongestStep && !values.isEmpty() &&
                          values.size() <= static_cast<int>(MaxValues);
    if (!isSeries) {
        return std::nullopt;
    }
    for (const QJsonValue each : values) {
        const bool isValue = each.isDouble() && std::abs(each.toDouble()) <= Largest;
        if (!isValue && !each.isNull()) {
            return std::nullopt;
        }
        series.values.push_back(isValue ? std::make_optional(each.toDouble()) : std::nullopt);
    }
    return series;
}

QJsonValue ReportSeries::toJson() const
{
    QJsonArray array;
    for (const std::optional<double>& value : values) {
        array.append(value ? QJsonValue(*value) : QJsonValue());
    }
    return QJsonObject{{QLatin1String(Keys::StepSeconds), stepSeconds},
                       {QLatin1String(Keys::Values), array}};
}
