// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/commands/UnattendedCommand.h"

#include "host/Console.h"
#include "host/Folders.h"
#include "host/InstalledEngine.h"
#include "host/ProgramEnd.h"
#include "host/TextTable.h"
#include "host/commands/CheckCommand.h"
#include "host/diagnosis/Diagnosis.h"
#include "host/diagnosis/LogRecorder.h"
#include "host/report/Figures.h"
#include "host/report/Redaction.h"
#include "host/report/Remedies.h"
#include "host/report/ReportBuilder.h"
#include "host/report/ReportFile.h"
#include "host/report/ReportWriter.h"
#include "host/unattended/UnattendedCheck.h"
#include "platform/backend/Engine.h"
#include "platform/backend/ResultKeys.h"

#include <QFileInfo>

namespace {

template <typename Value>
QString textOf(Value value)
{
    return qtTrId(ReportWords::textId(value));
}

// Both devices, and delay and level or why there are none.
QString loopDetailOf(const ReportCheck& check)
{
    QStringList parts;
    for (const Measurement& measurement : check.measurements) {
        const Figures::Figure* figure = Figures::find(check.kind, measurement.key);
        if (measurement.status != FigureStatus::Measured) {
            const auto reason = ReportWords::find<Reason>(measurement.reason);
            parts << (reason ? textOf(*reason) : Console::plainLine(measurement.reason));
        } else if (measurement.value.isString()) {
            parts << Console::plainLine(measurement.value.toString());
        } else if (figure) {
            parts << Figures::toText(measurement.value.toDouble(), figure->unit);
        }
    }
    parts.removeAll(QString()); // redacted
    return parts.join(QStringLiteral(", "));
}

// What stands beside the verdict: the device, or delay and loss.
QString detailOf(const ReportCheck& check)
{
    if (check.kind == CheckKind::Loop) {
        return loopDetailOf(check);
    }
    const auto figure = [&check](FigureName name, Figures::Unit unit) {
        const Measurement* found = check.measurement(name);
        const bool isMeasured = found && found->status == FigureStatus::Measured;
        return isMeasured ? Figures::toText(found->value.toDouble(), unit) : QString();
    };
    if (check.kind != CheckKind::Network) {
        return Console::plainLine(check.device);
    }
    const QString delay = figure(FigureName::Delay, Figures::Unit::Ms);
    return delay.isEmpty()
               ? delay
               : delay + QStringLiteral(", ") + figure(FigureName::Loss, Figures::Unit::Percent);
}

// Prints a line if it can't be.
bool isWritten(const QString& place, const QByteArray& content)
{
    const QString problem = CheckCommand::writeTo(place, content);
    if (!problem.isEmpty()) {
        Console::printError(problem);
    }
    return problem.isEmpty();
}

ExitCode codeOf(RunEnd outcome)
{
    switch (outcome) {
    case RunEnd::Works:
        return ExitCode::AllPassed;
    case RunEnd::Unavailable:
        return ExitCode::Unavailable;
    case RunEnd::BrokenOff:
        return ExitCode::LeftEarly;
    default:
        return ExitCode::SomeFailed;
    }
}

} // namespace

UnattendedCommand::UnattendedCommand(const Options& options) : m_options(options)
{
}

ExitCode UnattendedCommand::run(const QString& language)
{
    if (!prepare()) {
        return ExitCode::CannotWrite;
    }
    std::optional<LogRecorder> log;
    if (!m_options.diagnosisFile.isEmpty()) {
        log.emplace(m_options.isVerbose);
    }
    InstalledEngine installed(m_options, Folders::data());
    if (!installed.error().isEmpty()) {
        Console::printError(installed.error());
        return installed.errorCode();
    }
    ReportBuilder::Run run{QDateTime::currentDateTime(),
                           {},
                           language,
                           m_options.platform,
                           QFileInfo(m_options.scenario).completeBaseName()};
    if (!installed.prepare()) {
        return ExitCode::LeftEarly;
    }
    const DeviceSurvey devices = log ? DeviceSurvey::of(installed.engine()) : DeviceSurvey();
    const auto figures = [&installed](CheckKind kind) {
        return installed.results()
            .value(Platform::ResultKeys::Measurements)[ReportWords::of(kind)]
            .toObject();
    };
    UnattendedCheck check(installed.engine(), figures,
                          m_options.hasLoop ? UnattendedCheck::Noise::Sweep
                                            : UnattendedCheck::Noise::None);
    check.run();
    ProgramEnd::begin();
    run.finished = QDateTime::currentDateTime();
    const Redaction redaction(m_options.redaction, m_redactionKey);
    const Report plainReport =
        ReportBuilder::build(run, check.outcome(), check.checks(), check.networkFigures(),
                             installed.engine().systemFacts());
    const Report report = redaction.redacted(plainReport);
    print(report);
    bool areWritten = write(report);
    if (log) {
        const Diagnosis diagnosis{devices, plainReport, log->content()};
        areWritten = writeDiagnosis(diagnosis.toZip(redaction)) && areWritten;
    }
    installed.post(report);
    return areWritten ? codeOf(report.outcome) : ExitCode::CannotWrite;
}

bool UnattendedCommand::prepare()
{
    QString problem = CheckCommand::problemOfWritingTo(m_options.reportFile);
    if (problem.isEmpty()) {
        problem = CheckCommand::problemOfWritingTo(m_options.diagnosisFile);
    }
    if (problem.isEmpty() && m_options.redaction == Options::Redaction::Hash) {
        m_redactionKey = ReportFile::redactionKey(Folders::redactionKey(), &problem);
    }
    if (!problem.isEmpty()) {
        Console::printError(problem);
    }
    return problem.isEmpty();
}

void UnattendedCommand::print(const Report& report) const
{
    TextTable table;
    for (const ReportCheck& check : report.checks) {
        table.addRow({textOf(check.kind), textOf(check.verdict), detailOf(check)});
    }
    const QString text =
        table.toText() + textOf(report.outcome) + QLatin1Char('\n') + Remedies::toText(report);
    if (m_options.usesOutput()) {
        Console::printAside(text);
    } else {
        Console::print(text);
    }
}

bool UnattendedCommand::write(const Report& report) const
{
    if (m_options.reportFile.isEmpty()) {
        return true;
    }
    return isWritten(m_options.reportFile,
                     ReportWriter::toFormat(report, ReportWriter::formatOf(m_options.reportFile),
                                            report.language));
}

bool UnattendedCommand::writeDiagnosis(const QByteArray& archive) const
{
    if (!isWritten(m_options.diagnosisFile, archive)) {
        return false;
    }
    Console::printAside(qtTrId("ID_Host_ReportIsIn").arg(m_options.diagnosisFile) +
                        QLatin1Char('\n'));
    return true;
}
