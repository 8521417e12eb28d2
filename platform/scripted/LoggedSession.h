// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Platform {

class CallLog;

// Logs creation, calls and destruction of one session. The log must outlive it.
class LoggedSession
{
public:
    LoggedSession(CallLog& log, const QString& name, const QString& arguments = {});
    ~LoggedSession();
    LoggedSession(const LoggedSession&) = delete;
    LoggedSession& operator=(const LoggedSession&) = delete;

    void call(const char* operation, const QString& arguments = {}) const;
    void query(const char* operation) const;

private:
    QString text(const char* operation, const QString& arguments) const;

    CallLog& m_log;
    QString m_name;
};

} // namespace Platform
