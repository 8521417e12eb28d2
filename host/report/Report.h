// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportWords.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <optional>
#include <vector>

// One figure that an engine measured for a check, or why it didn't.
struct Measurement
{
    using Status = FigureStatus;

    QString key; // the word of a FigureName, or the engine's own name
    Status status = Status::NotMeasured;
    QJsonValue value; // if it was measured
    QString reason;   // if it wasn't: a word of docs/report-format.md, or the engine's own
};

// One check of a run: the answer of the user, and what was measured.
struct ReportCheck
{
    CheckKind kind = CheckKind::Network;
    Verdict verdict = Verdict::NotTested; // the one that the dialog showed last
    Answer answer = Answer::None;         // the network asks nothing
    SeenState deviceState = SeenState::Unknown;
    QString device;                            // foreign text
    std::vector<Measurement> measurements;     // at the time of the verdict
    std::vector<Measurement> later;            // those that changed after the verdict
    std::vector<Contradiction> contradictions; // between answer and measurements
    std::vector<Cause> causes;                 // of a failure; or that no server is configured

    bool has(Cause cause) const;
    const Measurement* measurement(const QString& key) const; // null if it isn't listed
    const Measurement* measurement(FigureName name) const;
};

// One line of the network's grade.
struct GradeLine
{
    NetworkGrade::Figure figure = NetworkGrade::Figure::OneWayDelay;
    NetworkGrade::Level level = NetworkGrade::Level::Good;
    double value = 0;
    double goodUpTo = 0;
    std::optional<double> fairUpTo;
    QString source;
};

// One difference to the last good run.
struct ReportChange
{
    ChangeSubject subject = ChangeSubject::System;
    ChangedThing what = ChangedThing::Verdict;
    QString before; // a word of the verdict or the grade, a number, or foreign text
    QString now;
};

// One run of the check, as files keep it. Texts of devices, accounts and addresses are foreign.
// ReportJson reads and writes it.
struct Report
{
    static constexpr int Version = 1;

    QString id;
    QString programVersion;
    QDateTime started;
    QDateTime finished;
    QString language;
    Options::Platform platform = Options::Platform::Devices;
    QString scenario; // of scripted devices
    Options::Redaction redaction = Options::Redaction::None;
    RunEnd outcome = RunEnd::LeftEarly;
    // "account", "nickname", "computer", "operatingSystem", "processor", "server", "clientAddress",
    // "cdn"; foreign texts; unknown ones are left out
    QJsonObject facts;
    std::optional<double> cacheFreeBytes;
    std::vector<ReportCheck> checks;
    std::optional<NetworkGrade::Level> grade; // of the network, if it was measured
    std::vector<GradeLine> gradeLines;
    std::optional<QDateTime> lastGoodRun;
    std::vector<ReportChange> changes;

    const ReportCheck* check(CheckKind kind) const; // null if there is none
};
