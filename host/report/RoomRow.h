// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"

#include <QJsonValue>

// What a support desk sees of one report: one row of a room's table. Foreign texts are on one line
// each, without control characters.
struct RoomRow
{
    struct Check
    {
        CheckKind kind = CheckKind::Network;
        Verdict verdict = Verdict::NotTested;
        QString device;
        std::vector<Cause> causes;
    };

    // One value of the row under the name that it has in CSV, JSON lines and databases.
    struct Field
    {
        const char* name;
        QJsonValue value; // a text, a number or null
    };

    QString id;
    QString programVersion;
    QDateTime finished;
    QString computer; // its name, or else what the reader of the reports calls it
    QString account;
    QString operatingSystem;
    QString server;
    Options::Platform platform = Options::Platform::Devices;
    Options::Redaction redaction = Options::Redaction::None;
    RunEnd outcome = RunEnd::LeftEarly;
    std::vector<Check> checks; // all of them, in the order of ReportWords
    std::optional<double> delayMs;
    std::optional<double> jitterMs;
    std::optional<double> lossPercent;
    std::optional<NetworkGrade::Level> grade;
    int contradictions = 0;

    // name: what to call the computer if the report doesn't say it.
    static RoomRow of(const Report& report, const QString& name);

    QString causes() const; // such as "network:slow camera:busy"
    int badness() const;    // the greater, the sooner somebody should look
    std::vector<Field> fields() const;

private:
    QString loopWord() const; // empty unless it was asked for
};
