// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportBuilder.h"

#include "host/report/Contradictions.h"
#include "host/report/Figures.h"
#include "host/report/NetworkGrade.h"
#include "platform/backend/SystemFacts.h"

#include <QCoreApplication>
#include <QUuid>
#include <limits>

namespace {

const QLatin1String NetworkKey("network");
const QLatin1String StateKey("state");
const QLatin1String DeviceKey("device");

// The two ways in which an engine says itself why it has no figure.
const QLatin1String FailedKey("failed");
const QLatin1String NotMeasuredKey("notMeasured");

QString outcomeWord(ExitCode code)
{
    switch (code) {
    case ExitCode::AllPassed:
        return QStringLiteral("passed");
    case ExitCode::SomeFailed:
        return QStringLiteral("failed");
    case ExitCode::PutOut:
        return QStringLiteral("putOut");
    default:
        return QStringLiteral("leftEarly");
    }
}

QString verdictWord(CheckOutcome::Verdict verdict)
{
    switch (verdict) {
    case CheckOutcome::Verdict::Passed:
        return QStringLiteral("passed");
    case CheckOutcome::Verdict::Failed:
        return QStringLiteral("failed");
    case CheckOutcome::Verdict::NotTested:
        break;
    }
    return QStringLiteral("notTested");
}

QString wordFor(int code, const QString& one, const QString& two, const QString& other)
{
    return code == 1 ? one : code == 2 ? two : other;
}

Measurement failed(const QString& key, const QString& reason)
{
    return {key, Measurement::Status::Failed, {}, reason};
}

Measurement notMeasured(const QString& key, const QString& reason)
{
    return {key, Measurement::Status::NotMeasured, {}, reason};
}

// Why a figure that the report lists isn't among those of the check.
Measurement missing(const QString& key, const QJsonObject& figures, bool wasOpened)
{
    if (figures.isEmpty() && !wasOpened) {
        return notMeasured(key, QStringLiteral("stepNotOpened"));
    }
    const QString state = figures.value(StateKey).toString();
    const bool hasBroken = state == QLatin1String("failed") || state == QLatin1String("hung") ||
                           state == QLatin1String("denied") || state == QLatin1String("busy");
    if (hasBroken) {
        return failed(key, state);
    }
    const bool isIdle = state == QLatin1String("absent") || state == QLatin1String("off") ||
                        state == QLatin1String("silent");
    return notMeasured(key, isIdle ? state : QStringLiteral("notRecorded"));
}

// Nobody counted the pictures of a camera that could not be opened.
bool isUncounted(const QString& key, const QJsonObject& figures)
{
    static const QStringList closed = {QStringLiteral("absent"), QStringLiteral("off"),
                                       QStringLiteral("denied"), QStringLiteral("busy")};
    return key == QLatin1String("pictures") && figures.value(key).toDouble() == 0 &&
           closed.contains(figures.value(StateKey).toString());
}

Measurement measurementOf(const QString& key, const QJsonObject& figures)
{
    const QJsonValue value = figures.value(key);
    const QJsonObject excuse = value.toObject();
    if (excuse.contains(FailedKey)) {
        return failed(key, excuse.value(FailedKey).toString());
    }
    if (excuse.contains(NotMeasuredKey)) {
        return notMeasured(key, excuse.value(NotMeasuredKey).toString());
    }
    // The network's way to say that nothing came back.
    const bool isOfAnswers =
        key.startsWith(QLatin1String("delay")) || key == QLatin1String("jitterMs");
    if (isOfAnswers && figures.value(QLatin1String("delayMs")).toDouble() < 0) {
        return failed(key, QStringLiteral("noAnswer"));
    }
    return {key, Measurement::Status::Measured, value, {}};
}

std::vector<Measurement> measurementsOf(const QString& check, const QJsonObject& figures,
                                        bool wasOpened)
{
    std::vector<Measurement> result;
    for (const Figures::Figure& figure : Figures::of(check)) {
        const QString key = QLatin1String(figure.key);
        const bool isMissing = !figures.contains(key) || isUncounted(key, figures);
        result.push_back(isMissing ? missing(key, figures, wasOpened)
                                   : measurementOf(key, figures));
    }
    for (auto it = figures.begin(); it != figures.end(); ++it) {
        const bool isKnown =
            it.key() == StateKey || it.key() == DeviceKey || Figures::find(check, it.key());
        if (!isKnown) {
            result.push_back(measurementOf(it.key(), figures));
        }
    }
    return result;
}

// false where there was none
bool isSame(const Measurement& measurement, const Measurement* before)
{
    return before && before->status == measurement.status && before->value == measurement.value &&
           before->reason == measurement.reason;
}

// Of the figures that were recorded after the verdict, those that the report lists otherwise.
std::vector<Measurement> laterOf(const ReportCheck& check, const QJsonObject& figures,
                                 const QJsonObject& laterFigures)
{
    QJsonObject newest = figures;
    for (auto it = laterFigures.begin(); it != laterFigures.end(); ++it) {
        newest.insert(it.key(), it.value());
    }
    std::vector<Measurement> result;
    for (const Measurement& measurement : measurementsOf(check.key, newest, true)) {
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
    check.key = outcome.key;
    check.verdict = verdictWord(outcome.verdict);
    check.answer = wordFor(values.value(QLatin1String("userState")).toInt(), QStringLiteral("yes"),
                           QStringLiteral("no"), QStringLiteral("none"));
    check.deviceState =
        wordFor(values.value(QLatin1String("deviceState")).toInt(), QStringLiteral("works"),
                QStringLiteral("fails"), QStringLiteral("unknown"));
    check.device = outcome.key == NetworkKey ? QString() : outcome.device;
    check.measurements = measurementsOf(outcome.key, figures, !values.isEmpty());
    check.later = laterOf(check, figures, laterFigures);
    check.contradictions = Contradictions::of(check);
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
    measured.delayMs = figures.value(QLatin1String("delayMs")).toInt(-1);
    measured.lossPercent = figures.value(QLatin1String("lossPercent")).toInt();
    measured.jitterMs = figures.value(QLatin1String("jitterMs")).toInt();
    const NetworkGrade grade = NetworkGrade::of(measured);
    if (grade.lines.empty()) {
        return;
    }
    report.grade = NetworkGrade::toString(grade.level);
    for (const NetworkGrade::Line& line : grade.lines) {
        const bool isBounded = line.fairUpTo < std::numeric_limits<double>::max();
        report.gradeLines.push_back(
            {line.key, NetworkGrade::toString(line.level), line.value, line.goodUpTo,
             isBounded ? std::optional<double>(line.fairUpTo) : std::nullopt, line.source});
    }
}

} // namespace

Report ReportBuilder::build(const Run& run, const QJsonObject& document, const RunOutcome& outcome,
                            const Platform::SystemFacts& facts)
{
    const QJsonObject results = document.value(QLatin1String("results")).toObject();
    const QJsonObject measurements = document.value(QLatin1String("measurements")).toObject();
    const QJsonObject later = document.value(QLatin1String("later")).toObject();
    Report report;
    report.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    report.programVersion = QCoreApplication::applicationVersion();
    report.started = run.started;
    report.finished = run.finished;
    report.language = run.language;
    report.platform = run.platform;
    report.scenario = run.scenario;
    report.outcome = outcomeWord(outcome.exitCode);
    addFacts(report, facts);
    for (const CheckOutcome& check : outcome.checks) {
        report.checks.push_back(checkOf(check, results.value(check.key).toObject(),
                                        measurements.value(check.key).toObject(),
                                        later.value(check.key).toObject()));
    }
    addGrade(report, measurements.value(NetworkKey).toObject());
    return report;
}
