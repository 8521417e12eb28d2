// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/RunHistory.h"

#include "platform/backend/FileWriter.h"

#include <QFile>
#include <QJsonDocument>
#include <algorithm>
#include <cmath>

namespace {

const QLatin1String PlatformKey("platform");
const QLatin1String OutcomeKey("outcome");
const QLatin1String FinishedKey("finished");
const QLatin1String ChecksKey("checks");
const QLatin1String VerdictKey("verdict");
const QLatin1String DeviceKey("device");
const QLatin1String GradeKey("grade");
const QLatin1String DelayKey("delayMs");
const QLatin1String SystemKey("operatingSystem");
const QLatin1String ServerKey("server");
const QLatin1String Passed("passed");
const QLatin1String NetworkCheck("network");

// The run as its line in the file.
QJsonObject lineOf(const Report& report, const QString& file)
{
    QJsonObject checks;
    for (const ReportCheck& check : report.checks) {
        QJsonObject values{{VerdictKey, check.verdict}, {DeviceKey, check.device}};
        if (check.key == NetworkCheck) {
            const Measurement* delay = check.measurement(DelayKey);
            values.insert(GradeKey, report.grade);
            values.insert(DelayKey, delay ? delay->value : QJsonValue());
        }
        checks.insert(check.key, values);
    }
    return {{QStringLiteral("id"), report.id},
            {FinishedKey, report.finished.toUTC().toString(Qt::ISODateWithMs)},
            {PlatformKey, report.platform},
            {OutcomeKey, report.outcome},
            {SystemKey, report.facts.value(SystemKey)},
            {ServerKey, report.facts.value(ServerKey)},
            {ChecksKey, checks},
            {QStringLiteral("report"), file}};
}

QJsonObject lastGoodLine(const QString& path, const QString& platform)
{
    QFile file(path);
    QJsonObject found;
    if (!file.open(QIODevice::ReadOnly)) {
        return found;
    }
    while (!file.atEnd()) {
        // A line that can't be read isn't a good run.
        const QJsonObject line = QJsonDocument::fromJson(file.readLine()).object();
        if (line.value(PlatformKey) == platform && line.value(OutcomeKey) == Passed) {
            found = line;
        }
    }
    return found;
}

bool isNoticeable(double before, double now)
{
    const double difference = std::abs(now - before);
    return difference > RunHistory::NoticeableDelayMs && difference > before / 2;
}

class Comparison
{
public:
    Comparison(const QJsonObject& before, const QJsonObject& now, Report& report)
        : m_before(before), m_now(now), m_report(report)
    {
    }

    void addSystem()
    {
        addText(QStringLiteral("system"), SystemKey, m_before, m_now);
        addText(QStringLiteral("system"), ServerKey, m_before, m_now);
    }

    void addCheck(const QString& key)
    {
        const QJsonObject before = m_before.value(ChecksKey).toObject().value(key).toObject();
        const QJsonObject now = m_now.value(ChecksKey).toObject().value(key).toObject();
        addText(key, VerdictKey, before, now);
        addText(key, DeviceKey, before, now);
        addText(key, GradeKey, before, now);
        if (before.value(DelayKey).isDouble() && now.value(DelayKey).isDouble()) {
            const double delayBefore = before.value(DelayKey).toDouble();
            const double delayNow = now.value(DelayKey).toDouble();
            if (isNoticeable(delayBefore, delayNow)) {
                add(key, DelayKey, QString::number(delayBefore), QString::number(delayNow));
            }
        }
    }

private:
    // What wasn't known at one of the times can't have changed.
    void addText(const QString& subject, const QString& what, const QJsonObject& before,
                 const QJsonObject& now)
    {
        const QString textBefore = before.value(what).toString();
        const QString textNow = now.value(what).toString();
        if (!textBefore.isEmpty() && !textNow.isEmpty() && textBefore != textNow) {
            add(subject, what, textBefore, textNow);
        }
    }

    void add(const QString& subject, const QString& what, const QString& before, const QString& now)
    {
        m_report.changes.push_back({subject, what, before, now});
    }

    const QJsonObject m_before;
    const QJsonObject m_now;
    Report& m_report;
};

QByteArray withLine(const QByteArray& present, const QByteArray& line)
{
    QByteArray runs = present;
    if (!runs.isEmpty() && !runs.endsWith('\n')) {
        runs += '\n';
    }
    runs += line;
    runs += '\n';
    for (int surplus = runs.count('\n') - RunHistory::MaxRuns; surplus > 0; --surplus) {
        runs.remove(0, runs.indexOf('\n') + 1);
    }
    return runs;
}

} // namespace

RunHistory::RunHistory(const QString& path) : m_path(path)
{
}

void RunHistory::compare(Report& report) const
{
    report.lastGoodRun.reset();
    report.changes.clear();
    const QJsonObject before = lastGoodLine(m_path, report.platform);
    const QDateTime time =
        QDateTime::fromString(before.value(FinishedKey).toString(), Qt::ISODateWithMs);
    if (!time.isValid()) {
        return;
    }
    report.lastGoodRun = time;
    Comparison comparison(before, lineOf(report, QString()), report);
    comparison.addSystem();
    for (const ReportCheck& check : report.checks) {
        comparison.addCheck(check.key);
    }
}

void RunHistory::append(const Report& report, const QString& file) const
{
    const QByteArray line = QJsonDocument(lineOf(report, file)).toJson(QJsonDocument::Compact);
    Platform::FileWriter::update(
        m_path, [line](const QByteArray& present) { return withLine(present, line); });
}
