// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportWords.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <optional>
#include <vector>

// One figure that an engine takes of a check, or why there is none.
struct Measurement
{
    using Status = FigureStatus;

    QString key; // the word of a FigureName, or a name of the engine's own
    Status status = Status::NotMeasured;
    QJsonValue value; // where it was measured
    QString reason;   // where it wasn't: one of the words of docs/report-format.md, or the engine's
};

// One check of a run: what the user said and what was measured.
struct ReportCheck
{
    CheckKind kind = CheckKind::Network;
    Verdict verdict = Verdict::NotTested; // the one that the dialog showed last
    Answer answer = Answer::None;         // the network asks nothing
    SeenState deviceState = SeenState::Unknown;
    QString device;                            // foreign text
    std::vector<Measurement> measurements;     // those that the verdict was made of
    std::vector<Measurement> later;            // of those, what changed after the verdict
    std::vector<Contradiction> contradictions; // between answer and measurements

    const Measurement* measurement(const QString& key) const; // null where it isn't listed
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

// What is different from the last good run.
struct ReportChange
{
    ChangeSubject subject = ChangeSubject::System;
    ChangedThing what = ChangedThing::Verdict;
    QString before; // a word of the verdict or the grade, a number, or foreign text
    QString now;
};

// One run of the check, as it is kept and passed on. Texts of devices, accounts and addresses are
// foreign. ReportJson reads and writes it.
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
    // "account", "nickname", "operatingSystem", "processor", "server", "clientAddress", "cdn";
    // foreign texts, left out where they aren't known
    QJsonObject facts;
    std::optional<double> cacheFreeBytes;
    std::vector<ReportCheck> checks;
    std::optional<NetworkGrade::Level> grade; // of the network; none where nothing was measured
    std::vector<GradeLine> gradeLines;
    std::optional<QDateTime> lastGoodRun;
    std::vector<ReportChange> changes;

    const ReportCheck* check(CheckKind kind) const; // null where there is none
};
