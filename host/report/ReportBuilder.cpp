// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportBuilder.h"

#include "host/report/Contradictions.h"
#include "host/report/Figures.h"
#include "host/report/NetworkGrade.h"
#include "host/report/Remedies.h"
#include "platform/backend/ResultCodes.h"
#include "platform/backend/ResultKeys.h"
#include "platform/backend/SystemFacts.h"

#include <QCoreApplication>
#include <QSysInfo>
#include <QUuid>
#include <limits>

namespace {

namespace ResultKeys = Platform::ResultKeys;

RunEnd endOf(ExitCode code)
{
    switch (code) {
    case ExitCode::AllPassed:
        return RunEnd::Passed;
    case ExitCode::SomeFailed:
        return RunEnd::Failed;
    case ExitCode::PutOut:
        return RunEnd::PutOut;
    default:
        return RunEnd::LeftEarly;
    }
}

Answer answerOf(int code)
{
    switch (static_cast<Platform::AnswerCode>(code)) {
    case Platform::AnswerCode::Yes:
        return Answer::Yes;
    case Platform::AnswerCode::No:
        return Answer::No;
    case Platform::AnswerCode::None:
        break;
    }
    return Answer::None;
}

SeenState stateOf(int code)
{
    switch (static_cast<Platform::StateCode>(code)) {
    case Platform::StateCode::Works:
        return SeenState::Works;
    case Platform::StateCode::Fails:
        return SeenState::Fails;
    case Platform::StateCode::Unknown:
        break;
    }
    return SeenState::Unknown;
}

Measurement failed(const QString& key, const QString& reason)
{
    return {key, Measurement::Status::Failed, {}, reason};
}

Measurement notMeasured(const QString& key, const QString& reason)
{
    return {key, Measurement::Status::NotMeasured, {}, reason};
}

// The state of the device, if that is why there is no figure.
std::optional<Reason> stateIn(const QJsonObject& figures)
{
    return ReportWords::find<Reason>(figures.value(ResultKeys::State).toString());
}

bool isOneOf(std::optional<Reason> state, std::initializer_list<Reason> reasons)
{
    return state && std::find(reasons.begin(), reasons.end(), *state) != reasons.end();
}

// Why the document lacks a figure that the report lists.
Measurement missing(const QString& key, const QJsonObject& figures, bool wasOpened)
{
    if (figures.isEmpty() && !wasOpened) {
        return notMeasured(key, ReportWords::of(Reason::StepNotOpened));
    }
    const std::optional<Reason> state = stateIn(figures);
    if (isOneOf(state, {Reason::Failed, Reason::Unreadable, Reason::Hung, Reason::Denied,
                        Reason::Busy, Reason::ServerLost, Reason::ServerSilent})) {
        return failed(key, ReportWords::of(*state));
    }
    const bool isIdle =
        isOneOf(state, {Reason::Absent, Reason::Off, Reason::Silent, Reason::NotBuilt});
    return notMeasured(key, ReportWords::of(isIdle ? *state : Reason::NotRecorded));
}

// Frames are only counted while a camera is open.
bool isUncounted(FigureName name, const QJsonObject& figures)
{
    return name == FigureName::Pictures && figures.value(ReportWords::of(name)).toDouble() == 0 &&
           isOneOf(stateIn(figures), {Reason::Absent, Reason::Off, Reason::Denied, Reason::Busy});
}

// Figures that need answers of the server.
bool isOfAnswers(const QString& key)
{
    const std::optional<FigureName> name = ReportWords::find<FigureName>(key);
    return name == FigureName::Delay || name == FigureName::Delay5 || name == FigureName::Delay95 ||
           name == FigureName::Jitter;
}

Measurement measurementOf(const QString& key, const QJsonObject& figures)
{
    const QJsonValue value = figures.value(key);
    // An engine may say why it has no figure.
    for (const FigureStatus status : {FigureStatus::Failed, FigureStatus::NotMeasured}) {
        const QJsonValue excuse = value[ReportWords::of(status)];
        if (!excuse.isUndefined()) {
            return {key, status, {}, excuse.toString()};
        }
    }
    // What comes from this machine's own responder says nothing about a network.
    if (stateIn(figures) == Reason::NoServer) {
        return notMeasured(key, ReportWords::of(Reason::NoServer));
    }
    // A negative value means that no answer came.
    const QString delayKey = ReportWords::of(FigureName::Delay);
    if (isOfAnswers(key) && figures.value(delayKey).toDouble() < 0) {
        return failed(key, ReportWords::of(Figures::whyNoDelay(figures)));
    }
    return {key, Measurement::Status::Measured, value, {}};
}

std::vector<Measurement> measurementsOf(CheckKind check, const QJsonObject& figures, bool wasOpened)
{
    std::vector<Measurement> result;
    for (const Figures::Figure& figure : Figures::of(check)) {
        const QString key = ReportWords::of(figure.name);
        const bool isMissing = !figures.contains(key) || isUncounted(figure.name, figures);
        result.push_back(isMissing ? missing(key, figures, wasOpened)
                                   : measurementOf(key, figures));
    }
    for (auto it = figures.begin(); it != figures.end(); ++it) {
        const bool isKnown = it.key() == ResultKeys::State || it.key() == ResultKeys::Cause ||
                             it.key() == ResultKeys::Device || Figures::find(check, it.key());
        if (!isKnown) {
            result.push_back(measurementOf(it.key(), figures));
        }
    }
    return result;
}

// false if there was none
bool isSame(const Measurement& measurement, const Measurement* before)
{
    return before && before->status == measurement.status && before->value == measurement.value &&
           before->reason == measurement.reason;
}

// The figures that were recorded after the verdict and differ from those in the report.
std::vector<Measurement> laterOf(const ReportCheck& check, const QJsonObject& figures,
                                 const QJsonObject& laterFigures)
{
    QJsonObject newest = figures;
    for (auto it = laterFigures.begin(); it != laterFigures.end(); ++it) {
        newest.insert(it.key(), it.value());
    }
    std::vector<Measurement> result;
    for (const Measurement& measurement : measurementsOf(check.kind, newest, true)) {
        const bool isNews = laterFigures.contains(measurement.key) &&
                            !isSame(measurement, check.measurement(measurement.key));
        if (isNews) {
            result.push_back(measurement);
        }
    }
    return result;
}

ReportCheck checkOf(const CheckOutcome& outcome, const QJsonObject& values,
                    const QJsonObject& figures, const QJsonObject& laterFigures)
{
    ReportCheck check;
    check.kind = outcome.check;
    check.verdict = outcome.verdict;
    check.answer = answerOf(values.value(ResultKeys::UserState).toInt());
    check.deviceState = stateOf(values.value(ResultKeys::DeviceState).toInt());
    check.device = outcome.check == CheckKind::Network ? QString() : outcome.device;
    check.measurements = measurementsOf(outcome.check, figures, !values.isEmpty());
    check.later = laterOf(check, figures, laterFigures);
    check.contradictions = Contradictions::of(check);
    check.causes = Remedies::causesOf(check, figures);
    return check;
}

void addFact(Report& report, const char* key, const QString& text)
{
    if (!text.isEmpty()) {
        report.facts.insert(QLatin1String(key), text);
    }
}

void addFacts(Report& report, const Platform::SystemFacts& facts)
{
    const QString account = facts.accountName();
    addFact(report, "account", account.isEmpty() ? facts.accountFallbackName() : account);
    addFact(report, "nickname", facts.nickName());
    addFact(report, "operatingSystem", facts.operatingSystem().join(QLatin1Char(' ')));
    addFact(report, "processor", facts.processorName());
    addFact(report, "server", facts.serverName());
    addFact(report, "clientAddress", facts.clientAddress());
    const QStringList cdn = {facts.cdnFirstPart(), facts.cdnSecondPart()};
    addFact(report, "cdn", cdn.join(QString()).isEmpty() ? QString() : cdn.join(QLatin1Char('/')));
    if (facts.cacheVolumeAvailableBytes() >= 0) {
        report.cacheFreeBytes = static_cast<double>(facts.cacheVolumeAvailableBytes());
    }
}

void addGrade(Report& report, const QJsonObject& figures)
{
    Platform::NetworkFigures measured;
    measured.delayMs = figures.value(ReportWords::of(FigureName::Delay)).toInt(measured.delayMs);
    measured.lossPercent = figures.value(ReportWords::of(FigureName::Loss)).toInt();
    measured.jitterMs = figures.value(ReportWords::of(FigureName::Jitter)).toInt();
    if (stateIn(figures) == Reason::NoServer) {
        measured.problem = Platform::NetworkProblem::NoServer;
    }
    const NetworkGrade grade = NetworkGrade::of(measured);
    if (grade.lines.empty()) {
        return;
    }
    report.grade = grade.level;
    for (const NetworkGrade::Line& line : grade.lines) {
        const bool isBounded = line.fairUpTo < std::numeric_limits<double>::max();
        report.gradeLines.push_back(
            {line.figure, line.level, line.value, line.goodUpTo,
             isBounded ? std::optional<double>(line.fairUpTo) : std::nullopt, line.source});
    }
}

Report emptyReport(const ReportBuilder::Run& run, const Platform::SystemFacts& facts)
{
    Report report;
    report.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    report.programVersion = QCoreApplication::applicationVersion();
    report.started = run.started;
    report.finished = run.finished;
    report.language = run.language;
    report.platform = run.platform;
    report.scenario = run.scenario;
    addFacts(report, facts);
    if (run.platform == Options::Platform::Devices) {
        addFact(report, "computer", QSysInfo::machineHostName());
    }
    return report;
}

} // namespace

Report ReportBuilder::build(const Run& run, const QJsonObject& document, const RunOutcome& outcome,
                            const Platform::SystemFacts& facts)
{
    const QJsonObject results = document.value(ResultKeys::Results).toObject();
    const QJsonObject measurements = document.value(ResultKeys::Measurements).toObject();
    const QJsonObject later = document.value(ResultKeys::Later).toObject();
    Report report = emptyReport(run, facts);
    report.outcome = endOf(outcome.exitCode);
    for (const CheckOutcome& check : outcome.checks) {
        const QString key = ReportWords::of(check.check);
        report.checks.push_back(checkOf(check, results.value(key).toObject(),
                                        measurements.value(key).toObject(),
                                        later.value(key).toObject()));
    }
    addGrade(report, measurements.value(ReportWords::of(CheckKind::Network)).toObject());
    return report;
}

Report ReportBuilder::build(const Run& run, RunEnd outcome, const std::vector<ReportCheck>& checks,
                            const QJsonObject& networkFigures, const Platform::SystemFacts& facts)
{
    Report report = emptyReport(run, facts);
    report.outcome = outcome;
    report.checks = checks;
    addGrade(report, networkFigures);
    return report;
}

std::vector<Measurement> ReportBuilder::measuredOf(CheckKind check, const QJsonObject& figures)
{
    std::vector<Measurement> result;
    for (const Measurement& measurement : measurementsOf(check, figures, true)) {
        if (measurement.reason != ReportWords::of(Reason::NotRecorded)) {
            result.push_back(measurement);
        }
    }
    return result;
}
