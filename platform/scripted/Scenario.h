// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomScripted/ClassroomScriptedExport.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

namespace Platform {

class ScriptedEngine;

// What a scripted engine plays: the state at the start, and the events after it.
class CLASSROOMSCRIPTED_EXPORT Scenario
{
public:
    using Action = std::function<void(ScriptedEngine&)>;

    struct Event
    {
        int atMs = 0; // from the start of the engine
        Action action;
    };

    QString description;
    std::vector<Action> setup;
    std::vector<Event> timeline; // sorted by time

    // Reads a bundled scenario by its name, or a file (docs/scenario-format.md). If that fails,
    // error is one line with the file, the line number and the field.
    static std::optional<Scenario> read(const QString& nameOrPath, QString* error);
    // Reads the content of such a file; the error calls it by this name.
    static std::optional<Scenario> parse(const QByteArray& json, const QString& name,
                                         QString* error);
    static QStringList bundledNames();
};

} // namespace Platform
