// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomScripted/ClassroomScriptedExport.h"
#include "platform/backend/ReportSink.h"
#include "platform/backend/ResultDocument.h"

#include <QObject>
#include <QVector>

namespace Platform {

class CallLog;

// Keeps what a run reports, for tests to look at.
class CLASSROOMSCRIPTED_EXPORT ScriptedReports final : public ReportSink
{
    Q_GADGET

public:
    enum class Outcome { Accepted, Refused, Unreachable };
    Q_ENUM(Outcome)

    struct Post
    {
        QString managerName;
        int code = 0;
        Outcome outcome = Outcome::Accepted; // how the server answered
    };

    explicit ScriptedReports(CallLog& log);
    ~ScriptedReports() override;

    void setOutcome(Outcome outcome) { m_outcome = outcome; } // of all further posts
    QVector<Post> posts() const { return m_posts; }
    ResultDocument& document() { return m_document; } // in memory unless a path is set

    void recordResult(const QString& key, const QJsonValue& value) override;
    void recordMeasurement(const QString& check, const QJsonObject& figures) override;
    void postCode(const QString& managerName, int code) override;

private:
    CallLog& m_log;
    ResultDocument m_document;
    QVector<Post> m_posts;
    Outcome m_outcome = Outcome::Accepted;
};

} // namespace Platform
