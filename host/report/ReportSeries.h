// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Figures.h"

#include <QJsonValue>
#include <vector>

// How one figure went during the run, as an engine records it (Platform::TimeSeries).
struct ReportSeries
{
    struct Kind
    {
        const char* key;
        const char* captionId;
        Figures::Unit unit;
    };

    static constexpr std::size_t MaxValues = 10000;

    const Kind* kind = nullptr;
    double stepSeconds = 1;
    std::vector<std::optional<double>> values; // nothing: it wasn't measured then

    static const Kind* kindOf(const QString& key); // null if no series has this key
    // Nothing if the value is no series: anybody may have written the report.
    static std::optional<ReportSeries> of(const QString& key, const QJsonValue& value);

    QJsonValue toJson() const; // with nothing in it but numbers
};
