// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QJsonArray>
#include <QJsonObject>

namespace Platform {

// The keys of series among the measurements of a check, and in a series.
namespace SeriesKeys {

inline constexpr char Delay[] = "delayOverTime";
inline constexpr char Jitter[] = "jitterOverTime";
inline constexpr char Loss[] = "lossOverTime";
inline constexpr char Rate[] = "rateOverTime";
inline constexpr char Level[] = "levelOverTime";

inline constexpr char StepSeconds[] = "stepSeconds";
inline constexpr char Values[] = "values";

} // namespace SeriesKeys

// How one figure went: a value for each second, the newest ten minutes of it.
class CLASSROOMBACKEND_EXPORT TimeSeries
{
public:
    static constexpr int MaxValues = 600;

    void add(double value);
    void addGap(); // nothing was measured in this second
    bool isEmpty() const { return m_values.isEmpty(); }
    QJsonObject toJson() const; // { "stepSeconds": 1, "values": [ 37, null, 38 ] }

private:
    void append(const QJsonValue& value);

    QJsonArray m_values;
};

} // namespace Platform
