// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomScripted/ClassroomScriptedExport.h"

#include <QString>
#include <QStringList>
#include <deque>

namespace Platform {

// The calls that the library made to the scripted back end, in order, as
// "object.operation(arguments)". Keeps the last MaxEntries calls.
class CLASSROOMSCRIPTED_EXPORT CallLog
{
public:
    static constexpr std::size_t MaxEntries = 10000;

    QStringList calls() const;
    QStringList commands() const; // without queries
    void clear();
    int livingSessions() const { return m_livingSessions; }

    void add(const QString& call);
    void addQuery(const QString& call);

private:
    friend class LoggedSession;

    struct Entry
    {
        QString text;
        bool isQuery = false;
    };

    void append(const Entry& entry);

    std::deque<Entry> m_entries;
    int m_livingSessions = 0;
};

} // namespace Platform
