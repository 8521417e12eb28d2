// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScenarioValues.h"

namespace Platform {

namespace {

constexpr int MaxDelayMs = 60 * 1000;
constexpr int MaxProbes = 1000 * 1000;
constexpr int UsualProbes = 50;

} // namespace

int ScenarioValues::integer(JsonFields& fields, const char* key, int min, int max)
{
    return static_cast<int>(fields.number(key, min, max));
}

int ScenarioValues::integer(JsonFields& fields, const char* key, int min, int max, int fallback)
{
    return static_cast<int>(fields.number(key, min, max, fallback));
}

ScriptedNetwork::Series ScenarioValues::readNetwork(JsonFields& fields)
{
    ScriptedNetwork::Series series;
    for (JsonFields& element : fields.objects("network", MaxElements)) {
        NetworkFigures figures;
        figures.delayMs = integer(element, "delayMs", -1, MaxDelayMs);
        figures.lossPercent =
            integer(element, "lossPercent", 0, MaxPercent, figures.delayMs < 0 ? MaxPercent : 0);
        figures.jitterMs = integer(element, "jitterMs", 0, MaxDelayMs, 0);
        figures.sent = integer(element, "sent", 0, MaxProbes, UsualProbes);
        figures.answered = integer(element, "answered", 0, figures.sent,
                                   figures.sent * (MaxPercent - figures.lossPercent) / MaxPercent);
        element.rejectOthers();
        series.push_back(figures);
    }
    return series;
}

ScriptedMicrophones::LevelCurve ScenarioValues::readLevels(JsonFields& fields)
{
    ScriptedMicrophones::LevelCurve curve;
    const QJsonArray points = fields.array("levels", MaxElements);
    for (int i = 0; i < points.size(); ++i) {
        const QJsonArray point = points.at(i).toArray();
        const int atMs = point.at(0).toInt(-1);
        const double level = point.at(1).toDouble(-1);
        const bool isLater = curve.empty() ? atMs == 0 : atMs > curve.back().atMs;
        if (point.size() != 2 || !isLater || atMs > MaxTimeMs || level < 0 || level > 1) {
            fields.problem().set(QStringLiteral("%1[%2]").arg(fields.path("levels")).arg(i),
                                 qtTrId("ID_Engine_Scenario_Levels"));
        }
        curve.push_back({atMs, level});
    }
    return curve;
}

} // namespace Platform
