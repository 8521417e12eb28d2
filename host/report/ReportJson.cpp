// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportJson.h"

#include "platform/backend/JsonFields.h"
#include "platform/backend/ResultKeys.h"

#include <QJsonArray>
#include <limits>

namespace {

using Platform::JsonFields;

const QLatin1String FormatName("envcheck-report");
constexpr qint64 MaxVersion = std::numeric_limits<int>::max();
constexpr qint64 MaxCacheBytes = qint64(1) << 60; // more than any disk has

template <typename Element>
QJsonArray toArray(const std::vector<Element>& elements,
                   QJsonObject (*toObject)(const Element& element))
{
    QJsonArray array;
    for (const Element& element : elements) {
        array.append(toObject(element));
    }
    return array;
}

template <typename Value>
QJsonArray wordArray(const std::vector<Value>& values)
{
    QJsonArray array;
    for (const Value value : values) {
        array.append(ReportWords::of(value));
    }
    return array;
}

QString timeText(const QDateTime& time)
{
    return time.toUTC().toString(Qt::ISODateWithMs);
}

QJsonObject measurementToJson(const Measurement& measurement)
{
    QJsonObject object{{QStringLiteral("key"), measurement.key},
                       {QStringLiteral("status"), ReportWords::of(measurement.status)}};
    if (measurement.status == Measurement::Status::Measured) {
        object.insert(QStringLiteral("value"), measurement.value);
    } else {
        object.insert(QStringLiteral("reason"), measurement.reason);
    }
    return object;
}

QJsonObject checkToJson(const ReportCheck& check)
{
    QJsonObject object{
        {QStringLiteral("check"), ReportWords::of(check.kind)},
        {QStringLiteral("verdict"), ReportWords::of(check.verdict)},
        {QStringLiteral("answer"), ReportWords::of(check.answer)},
        {QStringLiteral("deviceState"), ReportWords::of(check.deviceState)},
        {QStringLiteral("device"), check.device},
        {QStringLiteral("measurements"), toArray(check.measurements, measurementToJson)},
        {QStringLiteral("contradictions"), wordArray(check.contradictions)}};
    if (!check.causes.empty()) {
        object.insert(QStringLiteral("causes"), wordArray(check.causes));
    }
    if (!check.later.empty()) {
        object.insert(QStringLiteral("later"), toArray(check.later, measurementToJson));
    }
    return object;
}

QJsonObject gradeLineToJson(const GradeLine& line)
{
    QJsonObject object{{QStringLiteral("key"), ReportWords::of(line.figure)},
                       {QStringLiteral("level"), ReportWords::of(line.level)},
                       {QStringLiteral("value"), line.value},
                       {QStringLiteral("goodUpTo"), line.goodUpTo},
                       {QStringLiteral("source"), line.source}};
    if (line.fairUpTo) {
        object.insert(QStringLiteral("fairUpTo"), *line.fairUpTo);
    }
    return object;
}

QJsonObject changeToJson(const ReportChange& change)
{
    return {{QStringLiteral("subject"), ReportWords::of(change.subject)},
            {QStringLiteral("what"), ReportWords::of(change.what)},
            {QStringLiteral("before"), change.before},
            {QStringLiteral("now"), change.now}};
}

QString readText(JsonFields& fields, const char* key)
{
    return fields.text(key, JsonFields::AnyLength);
}

template <typename Value>
Value readWord(JsonFields& fields, const char* key)
{
    const QString word = fields.word(key, ReportWords::all<Value>());
    return ReportWords::find<Value>(word).value_or(Value());
}

std::optional<double> readOptional(JsonFields& fields, const char* key)
{
    return fields.contains(key) ? std::optional<double>(fields.real(key)) : std::nullopt;
}

// In UTC: a local time is another one on another machine.
QDateTime readTime(JsonFields& fields, const char* key)
{
    const QString text = readText(fields, key);
    const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
    const bool hasForm = text.size() == QLatin1String("2026-03-01T08:30:00Z").size() ||
                         text.size() == QLatin1String("2026-03-01T08:30:00.000Z").size();
    if (!time.isValid() || !hasForm || !text.endsWith(QLatin1Char('Z'))) {
        fields.problem().set(fields.path(key), qtTrId("ID_Host_Report_BadTime"));
    }
    return time;
}

template <typename Element>
std::vector<Element> readList(JsonFields& fields, const char* key, Element (*read)(JsonFields&))
{
    fields.require(key);
    std::vector<Element> result;
    for (JsonFields& element : fields.objects(key, JsonFields::AnyLength)) {
        result.push_back(read(element));
    }
    return result;
}

void rejectEmpty(JsonFields& fields, const char* key, bool isEmpty)
{
    if (isEmpty) {
        fields.problem().set(fields.path(key), qtTrId("ID_Engine_Json_Empty"));
    }
}

Measurement readMeasurement(JsonFields& fields)
{
    Measurement measurement;
    measurement.key = readText(fields, "key");
    measurement.status = readWord<FigureStatus>(fields, "status");
    if (measurement.status == Measurement::Status::Measured) {
        measurement.value = fields.any("value");
    } else {
        measurement.reason = readText(fields, "reason");
    }
    fields.rejectOthers();
    return measurement;
}

ReportCheck readCheck(JsonFields& fields)
{
    ReportCheck check;
    check.kind = readWord<CheckKind>(fields, "check");
    check.verdict = readWord<Verdict>(fields, "verdict");
    check.answer = readWord<Answer>(fields, "answer");
    check.deviceState = readWord<SeenState>(fields, "deviceState");
    check.device = readText(fields, "device");
    check.measurements = readList(fields, "measurements", readMeasurement);
    if (fields.contains("later")) {
        check.later = readList(fields, "later", readMeasurement);
        rejectEmpty(fields, "later", check.later.empty());
    }
    fields.require("contradictions");
    for (const QString& word : fields.words("contradictions", ReportWords::all<Contradiction>())) {
        check.contradictions.push_back(*ReportWords::find<Contradiction>(word));
    }
    for (const QString& word : fields.words("causes", ReportWords::all<Cause>())) {
        check.causes.push_back(*ReportWords::find<Cause>(word));
    }
    rejectEmpty(fields, "causes", fields.contains("causes") && check.causes.empty());
    fields.rejectOthers();
    return check;
}

GradeLine readGradeLine(JsonFields& fields)
{
    GradeLine line;
    line.figure = readWord<NetworkGrade::Figure>(fields, "key");
    line.level = readWord<NetworkGrade::Level>(fields, "level");
    line.value = fields.real("value");
    line.goodUpTo = fields.real("goodUpTo");
    line.fairUpTo = readOptional(fields, "fairUpTo");
    line.source = readText(fields, "source");
    fields.rejectOthers();
    return line;
}

ReportChange readChange(JsonFields& fields)
{
    const ReportChange change = {readWord<ChangeSubject>(fields, "subject"),
                                 readWord<ChangedThing>(fields, "what"), readText(fields, "before"),
                                 readText(fields, "now")};
    fields.rejectOthers();
    return change;
}

void readNetworkGrade(JsonFields& fields, Report& report)
{
    if (fields.contains("networkGrade")) {
        JsonFields grade = fields.object("networkGrade");
        report.grade = readWord<NetworkGrade::Level>(grade, "level");
        report.gradeLines = readList(grade, "lines", readGradeLine);
        grade.rejectOthers();
    }
}

void readChanges(JsonFields& fields, Report& report)
{
    if (fields.contains("changes")) {
        JsonFields changes = fields.object("changes");
        report.lastGoodRun = readTime(changes, "lastGoodRun");
        report.changes = readList(changes, "list", readChange);
        changes.rejectOthers();
    }
}

void readSystem(JsonFields& fields, Report& report)
{
    fields.require("system");
    JsonFields system = fields.object("system");
    if (system.contains("cacheFreeBytes")) {
        report.cacheFreeBytes = double(system.number("cacheFreeBytes", 0, MaxCacheBytes));
    }
    for (const char* fact : {"account", "nickname", "computer", "operatingSystem", "processor",
                             "server", "clientAddress", "cdn"}) {
        if (system.contains(fact)) {
            report.facts.insert(QLatin1String(fact), readText(system, fact));
        }
    }
    system.rejectOthers();
}

} // namespace

QJsonObject ReportJson::toJson(const Report& report)
{
    QJsonObject system = report.facts;
    if (report.cacheFreeBytes) {
        system.insert(QStringLiteral("cacheFreeBytes"), *report.cacheFreeBytes);
    }
    QJsonObject object{{QStringLiteral("format"), FormatName},
                       {QStringLiteral("version"), Report::Version},
                       {QStringLiteral("id"), report.id},
                       {QStringLiteral("programVersion"), report.programVersion},
                       {QStringLiteral("started"), timeText(report.started)},
                       {QStringLiteral("finished"), timeText(report.finished)},
                       {QStringLiteral("language"), report.language},
                       {QStringLiteral("platform"), ReportWords::of(report.platform)},
                       {QStringLiteral("redaction"), ReportWords::of(report.redaction)},
                       {QStringLiteral("outcome"), ReportWords::of(report.outcome)},
                       {QStringLiteral("system"), system},
                       {QStringLiteral("checks"), toArray(report.checks, checkToJson)}};
    if (!report.scenario.isEmpty()) {
        object.insert(QStringLiteral("scenario"), report.scenario);
    }
    if (report.grade) {
        object.insert(
            QStringLiteral("networkGrade"),
            QJsonObject{{QStringLiteral("level"), ReportWords::of(*report.grade)},
                        {QStringLiteral("lines"), toArray(report.gradeLines, gradeLineToJson)}});
    }
    if (report.lastGoodRun) {
        object.insert(QStringLiteral("changes"),
                      QJsonObject{{QStringLiteral("lastGoodRun"), timeText(*report.lastGoodRun)},
                                  {QStringLiteral("list"), toArray(report.changes, changeToJson)}});
    }
    return object;
}

std::optional<Report> ReportJson::fromJson(const QJsonObject& object, QString* error)
{
    Platform::JsonProblem problem;
    JsonFields fields(object, {}, problem);
    if (readText(fields, "format") != FormatName) {
        *error = QStringLiteral("format: ") + qtTrId("ID_Host_Report_OtherFormat");
        return std::nullopt;
    }
    const qint64 version = fields.number("version", 1, MaxVersion);
    if (!problem.isSet() && version != Report::Version) {
        *error = QStringLiteral("version: ") +
                 qtTrId("ID_Host_Report_OtherVersion").arg(version).arg(Report::Version);
        return std::nullopt;
    }
    Report report;
    report.id = readText(fields, "id");
    rejectEmpty(fields, "id", fields.contains("id") && report.id.isEmpty());
    report.programVersion = readText(fields, "programVersion");
    report.started = readTime(fields, "started");
    report.finished = readTime(fields, "finished");
    report.language = readText(fields, "language");
    report.platform = readWord<Options::Platform>(fields, "platform");
    report.redaction = readWord<Options::Redaction>(fields, "redaction");
    report.outcome = readWord<RunEnd>(fields, "outcome");
    report.scenario = fields.text("scenario", JsonFields::AnyLength, {});
    readSystem(fields, report);
    report.checks = readList(fields, "checks", readCheck);
    readNetworkGrade(fields, report);
    readChanges(fields, report);
    fields.rejectOthers();
    if (problem.isSet()) {
        *error = problem.toString();
        return std::nullopt;
    }
    return report;
}
