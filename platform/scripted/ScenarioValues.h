// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/JsonFields.h"
#include "platform/scripted/ScriptedMicrophones.h"
#include "platform/scripted/ScriptedNetwork.h"

namespace Platform {

// Values that occur both in the lists of a scenario and in the events of its timeline.
namespace ScenarioValues {

constexpr int MaxElements = 10000; // of a timeline, a series, a curve
constexpr int MaxIdLength = 1000;
constexpr int MaxTextLength = 100000;
constexpr int MaxTimeMs = 24 * 60 * 60 * 1000;
constexpr int MaxPercent = 100;

// JsonFields::number() as an int.
int integer(JsonFields& fields, const char* key, int min, int max);
int integer(JsonFields& fields, const char* key, int min, int max, int fallback);

ScriptedNetwork::Series readNetwork(JsonFields& fields);
ScriptedMicrophones::LevelCurve readLevels(JsonFields& fields);

} // namespace ScenarioValues
} // namespace Platform
