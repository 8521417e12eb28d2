// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/TimeSeries.h"

namespace Platform {

void TimeSeries::add(double value)
{
    append(value);
}

void TimeSeries::addGap()
{
    append(QJsonValue());
}

QJsonObject TimeSeries::toJson() const
{
    return {{QLatin1String(SeriesKeys::StepSeconds), 1},
            {QLatin1String(SeriesKeys::Values), m_values}};
}

void TimeSeries::append(const QJsonValue& value)
{
    if (m_values.size() >= MaxValues) {
        m_values.removeFirst();
    }
    m_values.append(value);
}

} // namespace Platform
