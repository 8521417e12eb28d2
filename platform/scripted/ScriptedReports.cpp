// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedReports.h"

#include "platform/scripted/CallLog.h"

#include <QVariant>

namespace Platform {

ScriptedReports::ScriptedReports(CallLog& log) : m_log(log)
{
}

ScriptedReports::~ScriptedReports() = default;

void ScriptedReports::recordResult(const QString& key, const QJsonValue& value)
{
    m_log.add(QStringLiteral("report.result(") + key + QLatin1Char('=') +
              value.toVariant().toString() + QLatin1Char(')'));
    m_document.recordResult(key, value);
}

void ScriptedReports::recordMeasurement(const QString& check, const QJsonObject& figures)
{
    m_log.add(QStringLiteral("report.measurement(") + check + QLatin1Char(')'));
    m_document.recordMeasurement(check, figures);
}

void ScriptedReports::postCode(const QString& managerName, int code)
{
    m_log.add(QStringLiteral("report.post(") + managerName + QLatin1Char(',') +
              QString::number(code) + QLatin1Char(')'));
    m_document.recordCode(code);
    m_posts.append({managerName, code, m_outcome});
}

} // namespace Platform
