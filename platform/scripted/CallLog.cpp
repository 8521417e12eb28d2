// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/CallLog.h"

namespace Platform {

QStringList CallLog::calls() const
{
    QStringList result;
    for (const Entry& entry : m_entries) {
        result.append(entry.text);
    }
    return result;
}

QStringList CallLog::commands() const
{
    QStringList result;
    for (const Entry& entry : m_entries) {
        if (!entry.isQuery) {
            result.append(entry.text);
        }
    }
    return result;
}

void CallLog::clear()
{
    m_entries.clear();
}

void CallLog::add(const QString& call)
{
    append({call, false});
}

void CallLog::addQuery(const QString& call)
{
    append({call, true});
}

void CallLog::append(const Entry& entry)
{
    m_entries.push_back(entry);
    if (m_entries.size() > MaxEntries) {
        m_entries.pop_front();
    }
}

} // namespace Platform
