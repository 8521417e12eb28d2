// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/JsonFields.h"
#include "platform/scripted/Scenario.h"

namespace Platform {

// Reads a scenario from its JSON document.
class ScenarioReader
{
public:
    explicit ScenarioReader(JsonProblem& problem);

    Scenario read(const QJsonObject& document);

private:
    JsonProblem& m_problem;
};

} // namespace Platform
