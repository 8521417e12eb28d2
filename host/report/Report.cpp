// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/Report.h"

#include <QJsonArray>
#include <algorithm>

namespace {

const QLatin1String FormatName("envcheck-report");

// Takes values out of an object, and keeps the first thing that is wrong with them.
class Fields
{
public:
    Fields(const QJsonObject& object, const QString& place, QString& error)
        : m_object(object), m_place(place), m_error(error)
    {
    }

    QString text(const char* key) { return value(key, QJsonValue::String, "a text").toString(); }

    template <typename Value>
    Value oneOf(const char* key)
    {
        return valueOf<Value>(key, text(key));
    }

    double number(const char* key) { return value(key, QJsonValue::Double, "a number").toDouble(); }

    std::optional<double> numberIfThere(const char* key)
    {
        return has(key) ? std::optional<double>(number(key)) : std::nullopt;
    }

    QDateTime time(const char* key)
    {
        const QDateTime result = QDateTime::fromString(text(key), Qt::ISODateWithMs);
        if (!result.isValid()) {
            fail(key, QStringLiteral("it isn't a time such as 2026-03-01T08:30:00Z"));
        }
        return result;
    }

    QJsonObject object(const char* key)
    {
        return value(key, QJsonValue::Object, "an object").toObject();
    }

    QJsonValue any(const char* key)
    {
        if (!has(key)) {
            fail(key, QStringLiteral("it is missing"));
        }
        return m_object.value(QLatin1String(key));
    }

    bool has(const char* key) const { return m_object.contains(QLatin1String(key)); }

    // read is called with the fields of each element.
    template <typename Element, typename Read>
    std::vector<Element> list(const char* key, const Read& read)
    {
        std::vector<Element> result;
        const QJsonArray array = value(key, QJsonValue::Array, "a list").toArray();
        for (int i = 0; i < array.size(); ++i) {
            const QString place = QStringLiteral("%1[%2]").arg(placeOf(key)).arg(i);
            Fields fields(array.at(i).toObject(), place + QLatin1Char('.'), m_error);
            result.push_back(read(fields));
        }
        return result;
    }

    template <typename Value>
    std::vector<Value> listOf(const char* key)
    {
        std::vector<Value> result;
        const QJsonArray array = value(key, QJsonValue::Array, "a list").toArray();
        for (const QJsonValue& element : array) {
            if (!element.isString()) {
                fail(key, QStringLiteral("it isn't a list of texts"));
            }
            result.push_back(valueOf<Value>(key, element.toString()));
        }
        return result;
    }

    void fail(const char* key, const QString& problem)
    {
        if (m_error.isEmpty()) {
            m_error = QStringLiteral("%1: %2").arg(placeOf(key), problem);
        }
    }

private:
    QString placeOf(const char* key) const { return m_place + QLatin1String(key); }

    template <typename Value>
    Value valueOf(const char* key, const QString& word)
    {
        const std::optional<Value> found = ReportWords::find<Value>(word);
        if (!found) {
            fail(key, QStringLiteral("it is '%1', not one of %2")
                          .arg(word, ReportWords::all<Value>().join(QLatin1String(", "))));
        }
        return found.value_or(Value());
    }

    QJsonValue value(const char* key, QJsonValue::Type type, const char* typeName)
    {
        const QJsonValue found = m_object.value(QLatin1String(key));
        if (found.type() != type) {
            fail(key, found.isUndefined()
                          ? QStringLiteral("it is missing")
                          : QStringLiteral("it isn't %1").arg(QLatin1String(typeName)));
        }
        return found;
    }

    const QJsonObject m_object;
    const QString m_place;
    QString& m_error;
};

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

QJsonArray wordArray(const std::vector<Contradiction>& values)
{
    QJsonArray array;
    for (const Contradiction value : values) {
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

Measurement readMeasurement(Fields& fields)
{
    Measurement measurement;
    measurement.key = fields.text("key");
    measurement.status = fields.oneOf<FigureStatus>("status");
    if (measurement.status == Measurement::Status::Measured) {
        measurement.value = fields.any("value");
    } else {
        measurement.reason = fields.text("reason");
    }
    return measurement;
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
    if (!check.later.empty()) {
        object.insert(QStringLiteral("later"), toArray(check.later, measurementToJson));
    }
    return object;
}

ReportCheck readCheck(Fields& fields)
{
    ReportCheck check;
    check.kind = fields.oneOf<CheckKind>("check");
    check.verdict = fields.oneOf<Verdict>("verdict");
    check.answer = fields.oneOf<Answer>("answer");
    check.deviceState = fields.oneOf<SeenState>("deviceState");
    check.device = fields.text("device");
    check.measurements = fields.list<Measurement>("measurements", readMeasurement);
    if (fields.has("later")) {
        check.later = fields.list<Measurement>("later", readMeasurement);
    }
    check.contradictions = fields.listOf<Contradiction>("contradictions");
    return check;
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

GradeLine readGradeLine(Fields& fields)
{
    GradeLine line;
    line.figure = fields.oneOf<NetworkGrade::Figure>("key");
    line.level = fields.oneOf<NetworkGrade::Level>("level");
    line.value = fields.number("value");
    line.goodUpTo = fields.number("goodUpTo");
    line.fairUpTo = fields.numberIfThere("fairUpTo");
    line.source = fields.text("source");
    return line;
}

QJsonObject changeToJson(const ReportChange& change)
{
    return {{QStringLiteral("subject"), ReportWords::of(change.subject)},
            {QStringLiteral("what"), ReportWords::of(change.what)},
            {QStringLiteral("before"), change.before},
            {QStringLiteral("now"), change.now}};
}

ReportChange readChange(Fields& fields)
{
    return {fields.oneOf<ChangeSubject>("subject"), fields.oneOf<ChangedThing>("what"),
            fields.text("before"), fields.text("now")};
}

void readNetworkGrade(Fields& fields, Report& report, QString& error)
{
    if (fields.has("networkGrade")) {
        Fields grade(fields.object("networkGrade"), QStringLiteral("networkGrade."), error);
        report.grade = grade.oneOf<NetworkGrade::Level>("level");
        report.gradeLines = grade.list<GradeLine>("lines", readGradeLine);
    }
}

void readChanges(Fields& fields, Report& report, QString& error)
{
    if (fields.has("changes")) {
        Fields changes(fields.object("changes"), QStringLiteral("changes."), error);
        report.lastGoodRun = changes.time("lastGoodRun");
        report.changes = changes.list<ReportChange>("list", readChange);
    }
}

} // namespace

const Measurement* ReportCheck::measurement(const QString& key) const
{
    const auto found =
        std::find_if(measurements.begin(), measurements.end(),
                     [&key](const Measurement& candidate) { return candidate.key == key; });
    return found == measurements.end() ? nullptr : &*found;
}

const Measurement* ReportCheck::measurement(FigureName name) const
{
    return measurement(ReportWords::of(name));
}

const ReportCheck* Report::check(CheckKind kind) const
{
    const auto found = std::find_if(checks.begin(), checks.end(),
                                    [kind](const ReportCheck& c) { return c.kind == kind; });
    return found == checks.end() ? nullptr : &*found;
}

QJsonObject Report::toJson() const
{
    QJsonObject system = facts;
    if (cacheFreeBytes) {
        system.insert(QStringLiteral("cacheFreeBytes"), *cacheFreeBytes);
    }
    QJsonObject object{{QStringLiteral("format"), FormatName},
                       {QStringLiteral("version"), Version},
                       {QStringLiteral("id"), id},
                       {QStringLiteral("programVersion"), programVersion},
                       {QStringLiteral("started"), timeText(started)},
                       {QStringLiteral("finished"), timeText(finished)},
                       {QStringLiteral("language"), language},
                       {QStringLiteral("platform"), ReportWords::of(platform)},
                       {QStringLiteral("redaction"), ReportWords::of(redaction)},
                       {QStringLiteral("outcome"), ReportWords::of(outcome)},
                       {QStringLiteral("system"), system},
                       {QStringLiteral("checks"), toArray(checks, checkToJson)}};
    if (!scenario.isEmpty()) {
        object.insert(QStringLiteral("scenario"), scenario);
    }
    if (grade) {
        object.insert(QStringLiteral("networkGrade"),
                      QJsonObject{{QStringLiteral("level"), ReportWords::of(*grade)},
                                  {QStringLiteral("lines"), toArray(gradeLines, gradeLineToJson)}});
    }
    if (lastGoodRun) {
        object.insert(QStringLiteral("changes"),
                      QJsonObject{{QStringLiteral("lastGoodRun"), timeText(*lastGoodRun)},
                                  {QStringLiteral("list"), toArray(changes, changeToJson)}});
    }
    return object;
}

std::optional<Report> Report::fromJson(const QJsonObject& object, QString* error)
{
    QString problem;
    Fields fields(object, QString(), problem);
    if (fields.text("format") != FormatName) {
        *error = QStringLiteral("format: this isn't a report of the check");
        return std::nullopt;
    }
    const int version = static_cast<int>(fields.number("version"));
    if (version != Version) {
        *error = QStringLiteral("version: it is %1, and this program reads version %2")
                     .arg(version)
                     .arg(Version);
        return std::nullopt;
    }
    Report report;
    report.id = fields.text("id");
    report.programVersion = fields.text("programVersion");
    report.started = fields.time("started");
    report.finished = fields.time("finished");
    report.language = fields.text("language");
    report.platform = fields.oneOf<Options::Platform>("platform");
    report.redaction = fields.oneOf<Options::Redaction>("redaction");
    report.outcome = fields.oneOf<RunEnd>("outcome");
    report.scenario = fields.has("scenario") ? fields.text("scenario") : QString();
    report.facts = fields.object("system");
    Fields system(report.facts, QStringLiteral("system."), problem);
    report.cacheFreeBytes = system.numberIfThere("cacheFreeBytes");
    report.facts.remove(QLatin1String("cacheFreeBytes"));
    report.checks = fields.list<ReportCheck>("checks", readCheck);
    readNetworkGrade(fields, report, problem);
    readChanges(fields, report, problem);
    if (!problem.isEmpty()) {
        *error = problem;
        return std::nullopt;
    }
    return report;
}
