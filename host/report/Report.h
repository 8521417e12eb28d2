// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

// One figure that an engine takes of a check, or why there is none.
struct Measurement
{
    enum class Status { Measured, NotMeasured, Failed };

    QString key;
    Status status = Status::NotMeasured;
    QJsonValue value; // where it was measured
    QString reason;   // where it wasn't: one of the words of docs/report-format.md, or the engine's
};

// One check of a run: what the user said and what was measured.
struct ReportCheck
{
    QString key;                           // "network", "camera", "speaker", "microphone"
    QString verdict;                       // "passed", "failed", "notTested"
    QString answer;                        // "yes", "no", "none"; the network asks nothing
    QString deviceState;                   // "works", "fails", "unknown"
    QString device;                        // foreign text
    std::vector<Measurement> measurements; // those that the verdict was made of
    std::vector<Measurement> later;        // of those, what changed after the verdict
    QStringList contradictions;            // between answer and measurements

    const Measurement* measurement(const QString& name) const; // null where it isn't listed
};

// One line of the network's grade.
struct GradeLine
{
    QString key;
    QString level; // "good", "fair", "poor"
    double value = 0;
    double goodUpTo = 0;
    std::optional<double> fairUpTo;
    QString source;
};

// What is different from the last good run.
struct ReportChange
{
    QString subject; // a check, or "system"
    QString what;    // "verdict", "device", "grade", "delayMs", "operatingSystem", "server"
    QString before;
    QString now;
};

// One run of the check, as it is kept and passed on. Texts of devices, accounts and addresses are
// foreign. docs/report-format.md and docs/report-schema.json describe its JSON.
struct Report
{
    static constexpr int Version = 1;

    QString id;
    QString programVersion;
    QDateTime started;
    QDateTime finished;
    QString language;
    QString platform;                           // "devices" or "scripted"
    QString scenario;                           // of scripted devices
    QString redaction = QStringLiteral("none"); // "none", "personal", "hash"
    QString outcome;                            // "passed", "failed", "leftEarly", "putOut"
    // "account", "nickname", "operatingSystem", "processor", "server", "clientAddress", "cdn";
    // foreign texts, left out where they aren't known
    QJsonObject facts;
    std::optional<double> cacheFreeBytes;
    std::vector<ReportCheck> checks;
    QString grade; // of the network; empty where nothing was measured
    std::vector<GradeLine> gradeLines;
    std::optional<QDateTime> lastGoodRun;
    std::vector<ReportChange> changes;

    const ReportCheck* check(const QString& key) const; // null where there is none
    QJsonObject toJson() const;
    // Nothing where the object isn't a report; error then is one line that names the field.
    static std::optional<Report> fromJson(const QJsonObject& object, QString* error);
};
