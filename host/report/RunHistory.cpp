// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/RunHistory.h"

#include "host/Folders.h"
#include "platform/backend/FileWriter.h"
#include "platform/backend/WholeFile.h"

#include <QJsonDocument>
#include <algorithm>
#include <cmath>

namespace {

const QLatin1String PlatformKey("platform");
const QLatin1String OutcomeKey("outcome");
const QLatin1String FinishedKey("finished");
const QLatin1String ChecksKey("checks");
const QLatin1String IdKey("id");
const QLatin1String ReportKey("report");
const QLatin1String RedactionKey("redaction");

using ReportWords::of;

ChangeSubject subjectOf(CheckKind check)
{
    switch (check) {
    case CheckKind::Network:
        return ChangeSubject::Network;
    case CheckKind::Camera:
        return ChangeSubject::Camera;
    case CheckKind::Speaker:
        return ChangeSubject::Speaker;
    case CheckKind::Microphone:
        return ChangeSubject::Microphone;
    case CheckKind::Loop:
        break;
    }
    return ChangeSubject::System;
}

// The line of a run in the file.
QJsonObject lineOf(const Report& report, const QString& file)
{
    QJsonObject checks;
    for (const ReportCheck& check : report.checks) {
        QJsonObject values{{of(ChangedThing::Verdict), of(check.verdict)},
                           {of(ChangedThing::Device), check.device}};
        if (check.kind == CheckKind::Network) {
            const Measurement* delay = check.measurement(FigureName::Delay);
            values.insert(of(ChangedThing::Grade), report.grade ? of(*report.grade) : QString());
            values.insert(of(ChangedThing::Delay), delay ? delay->value : QJsonValue());
        }
        checks.insert(of(check.kind), values);
    }
    return {
        {IdKey, report.id},
        {RedactionKey, of(report.redaction)},
        {FinishedKey, report.finished.toUTC().toString(Qt::ISODateWithMs)},
        {PlatformKey, of(report.platform)},
        {OutcomeKey, of(report.outcome)},
        {of(ChangedThing::OperatingSystem), report.facts.value(of(ChangedThing::OperatingSystem))},
        {of(ChangedThing::Server), report.facts.value(of(ChangedThing::Server))},
        {ChecksKey, checks},
        {ReportKey,
         report.redaction == Options::Redaction::None ? file : Folders::shortened(file)}};
}

// Lines of earlier versions don't say it: nothing was redacted.
QString redactionOf(const QJsonObject& line)
{
    return line.value(RedactionKey).toString(of(Options::Redaction::None));
}

QJsonObject lastGoodLine(const QString& path, Options::Platform platform)
{
    QByteArray runs;
    QJsonObject found;
    // The check goes on without a history that can't be read; to append to it says why.
    Platform::WholeFile::read(path, &runs);
    for (const QByteArray& each : runs.split('\n')) {
        // Skips a damaged line: it is no good run.
        const QJsonObject line = QJsonDocument::fromJson(each).object();
        if (line.value(PlatformKey) == of(platform) &&
            line.value(OutcomeKey) == of(RunEnd::Passed)) {
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
        : m_before(before),
          m_now(now),
          m_hasSameTexts(redactionOf(before) == redactionOf(now)),
          m_report(report)
    {
    }

    void addSystem()
    {
        addText(ChangeSubject::System, ChangedThing::OperatingSystem, m_before, m_now);
        addText(ChangeSubject::System, ChangedThing::Server, m_before, m_now);
    }

    void addCheck(CheckKind check)
    {
        const ChangeSubject subject = subjectOf(check);
        const QJsonObject before = m_before.value(ChecksKey)[of(check)].toObject();
        const QJsonObject now = m_now.value(ChecksKey)[of(check)].toObject();
        addText(subject, ChangedThing::Verdict, before, now);
        addText(subject, ChangedThing::Device, before, now);
        addText(subject, ChangedThing::Grade, before, now);
        const QJsonValue delayBefore = before.value(of(ChangedThing::Delay));
        const QJsonValue delayNow = now.value(of(ChangedThing::Delay));
        if (delayBefore.isDouble() && delayNow.isDouble() &&
            isNoticeable(delayBefore.toDouble(), delayNow.toDouble())) {
            add(subject, ChangedThing::Delay, QString::number(delayBefore.toDouble()),
                QString::number(delayNow.toDouble()));
        }
    }

private:
    // A value that one of the runs doesn't know counts as unchanged.
    void addText(ChangeSubject subject, ChangedThing what, const QJsonObject& before,
                 const QJsonObject& now)
    {
        const bool isForeign = what == ChangedThing::Device || what == ChangedThing::Server;
        if (isForeign && !m_hasSameTexts) {
            return;
        }
        const QString textBefore = before.value(of(what)).toString();
        const QString textNow = now.value(of(what)).toString();
        if (!textBefore.isEmpty() && !textNow.isEmpty() && textBefore != textNow) {
            add(subject, what, textBefore, textNow);
        }
    }

    void add(ChangeSubject subject, ChangedThing what, const QString& before, const QString& now)
    {
        m_report.changes.push_back({subject, what, before, now});
    }

    const QJsonObject m_before;
    const QJsonObject m_now;
    const bool m_hasSameTexts;
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

std::vector<RunHistory::Run> RunHistory::runs(QString* problem) const
{
    QByteArray content;
    const QString unreadable = Platform::WholeFile::read(m_path, &content);
    if (!unreadable.isEmpty()) {
        *problem = qtTrId("ID_Host_File_NotRead").arg(m_path, unreadable);
        return {};
    }
    std::vector<Run> result;
    for (const QByteArray& each : content.split('\n')) {
        const QJsonObject line = QJsonDocument::fromJson(each).object();
        const QDateTime finished =
            QDateTime::fromString(line.value(FinishedKey).toString(), Qt::ISODateWithMs);
        if (!finished.isValid()) {
            continue;
        }
        Run run{line.value(IdKey).toString(),
                finished,
                line.value(PlatformKey).toString(),
                line.value(OutcomeKey).toString(),
                {},
                Folders::expanded(line.value(ReportKey).toString())};
        const QJsonObject checks = line.value(ChecksKey).toObject();
        for (auto check = checks.begin(); check != checks.end(); ++check) {
            run.verdicts.insert(check.key(), check.value()[of(ChangedThing::Verdict)]);
        }
        result.push_back(run);
    }
    return result;
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
        comparison.addCheck(check.kind);
    }
}

void RunHistory::append(const Report& report, const QString& file) const
{
    const QByteArray line = QJsonDocument(lineOf(report, file)).toJson(QJsonDocument::Compact);
    Platform::FileWriter::update(
        m_path, [line](const QByteArray& present) { return withLine(present, line); });
}
