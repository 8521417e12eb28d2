// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/LoggedSession.h"

#include "platform/scripted/CallLog.h"

namespace Platform {

LoggedSession::LoggedSession(CallLog& log, const QString& name, const QString& arguments)
    : m_log(log), m_name(name)
{
    ++m_log.m_livingSessions;
    call("create", arguments);
}

LoggedSession::~LoggedSession()
{
    call("destroy");
    --m_log.m_livingSessions;
}

void LoggedSession::call(const char* operation, const QString& arguments) const
{
    m_log.add(text(operation, arguments));
}

void LoggedSession::query(const char* operation) const
{
    m_log.addQuery(text(operation, {}));
}

QString LoggedSession::text(const char* operation, const QString& arguments) const
{
    return m_name + QLatin1Char('.') + QLatin1String(operation) + QLatin1Char('(') + arguments +
           QLatin1Char(')');
}

} // namespace Platform
