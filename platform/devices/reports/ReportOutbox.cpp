// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/reports/ReportOutbox.h"

#include "platform/backend/EndingThreads.h"
#include "platform/backend/FileWriter.h"
#include "platform/backend/Log.h"
#include "platform/backend/WebAddress.h"
#include "platform/devices/ThreadName.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QUuid>

#include <future>

namespace Platform {

namespace {

const QLatin1String JournalName("/journal.txt");
const QLatin1String OutboxName("/outbox");
constexpr int MaxJournalBytes = 1024 * 1024;
constexpr int ReportVersion = 1;

// The oldest lines go where the journal grows too large.
QByteArray withLine(const QByteArray& journal, const QByteArray& line)
{
    const QByteArray whole = journal + line;
    if (whole.size() <= MaxJournalBytes) {
        return whole;
    }
    return whole.mid(whole.indexOf('\n', whole.size() - MaxJournalBytes) + 1);
}

QString now()
{
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
}

QString newReportId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

} // namespace

ReportOutbox::ReportOutbox(const QString& resultsPath, const QString& folder,
                           const QString& reportUrl, const OutboxLimits& limits,
                           const QByteArray& token)
    : m_results(resultsPath), m_folder(folder)
{
    if (reportUrl.isEmpty()) {
        return;
    }
    const std::optional<QUrl> url = webAddress(reportUrl);
    if (!url) {
        qCWarning(Log::reports).noquote()
            << "Reports are not posted: the report address" << reportUrl
            << "is not one. Give it as http://HOST/PATH or "
               "https://HOST/PATH";
        return;
    }
    startPosting({*url, token}, limits);
}

ReportOutbox::~ReportOutbox()
{
    if (m_thread) {
        m_thread->quit();
        EndingThreads threads;
        threads.take(std::move(m_thread));
        threads.wait();
    }
}

void ReportOutbox::recordResult(const QString& key, const QJsonValue& value)
{
    m_results.recordResult(key, value);
}

void ReportOutbox::recordMeasurement(const QString& check, const QJsonObject& figures)
{
    m_results.recordMeasurement(check, figures);
}

void ReportOutbox::postCode(const QString& managerName, int code)
{
    m_results.recordCode(code);

    const QString time = now();
    const QString line =
        QStringLiteral("%1 %2 %3\n").arg(time, QString::number(code), managerName.simplified());
    FileWriter::update(m_folder + JournalName, [text = line.toUtf8()](const QByteArray& journal) {
        return withLine(journal, text);
    });
    if (!m_poster) {
        return;
    }
    const QJsonObject content{{QStringLiteral("version"), ReportVersion},
                              {QStringLiteral("id"), newReportId()},
                              {QStringLiteral("time"), time},
                              {QStringLiteral("manager"), managerName},
                              {QStringLiteral("code"), code}};
    const QByteArray report = QJsonDocument(content).toJson(QJsonDocument::Compact);
    const QString fileName = newFileName();
    FileWriter::replace(pathOf(fileName), report);
    add(fileName, report);
}

void ReportOutbox::postReport(const QByteArray& report, std::chrono::milliseconds limit)
{
    if (!m_poster) {
        return;
    }
    const QString fileName = newFileName();
    const QString path = pathOf(fileName);
    const QString problem = FileWriter::replaceNow(path, report, int(limit.count()));
    if (!problem.isEmpty()) {
        qCWarning(Log::reports).noquote()
            << "Not kept in case it doesn't arrive:" << path << "-" << problem;
    }
    add(fileName, report);
}

// The names sort by time, also within a millisecond. Colons in them are trouble elsewhere.
QString ReportOutbox::newFileName()
{
    return QStringLiteral("%1-%2-%3.json")
        .arg(now().remove(QLatin1Char(':')))
        .arg(m_count++, 4, 10, QLatin1Char('0'))
        .arg(newReportId());
}

QString ReportOutbox::pathOf(const QString& fileName) const
{
    return m_folder + OutboxName + QLatin1Char('/') + fileName;
}

void ReportOutbox::add(const QString& fileName, const QByteArray& report)
{
    QMetaObject::invokeMethod(
        m_poster, [poster = m_poster, fileName, report] { poster->add(fileName, report); });
}

DeliveryOutcome ReportOutbox::deliver(std::chrono::milliseconds limit)
{
    if (!m_poster) {
        return {};
    }
    const auto settled = std::make_shared<std::promise<DeliveryOutcome>>();
    std::future<DeliveryOutcome> outcome = settled->get_future();
    QMetaObject::invokeMethod(m_poster, [poster = m_poster, settled] {
        poster->whenSettled([settled](const DeliveryOutcome& settledOutcome) {
            settled->set_value(settledOutcome);
        });
    });
    if (outcome.wait_for(limit) == std::future_status::ready) {
        return outcome.get();
    }
    DeliveryOutcome unknown;
    unknown.isUnderWay = true;
    return unknown;
}

void ReportOutbox::startPosting(const ReportServer& server, const OutboxLimits& limits)
{
    m_poster = new OutboxPoster(server, m_folder + OutboxName, limits);
    m_thread = std::make_unique<QThread>();
    m_poster->moveToThread(m_thread.get());
    QObject::connect(m_thread.get(), &QThread::started, m_poster, &OutboxPoster::start);
    QObject::connect(m_thread.get(), &QThread::finished, m_poster, &QObject::deleteLater);
    ThreadName::set(*m_thread, QStringLiteral("ReportOutbox"));
    m_thread->start();
}

} // namespace Platform
