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

} // namespace

ReportOutbox::ReportOutbox(const QString& resultsPath, const QString& folder,
                           const QString& reportUrl, const OutboxLimits& limits)
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
    startPosting(*url, limits);
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

    const QString time = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    const QString line =
        QStringLiteral("%1 %2 %3\n").arg(time, QString::number(code), managerName.simplified());
    FileWriter::update(m_folder + JournalName, [text = line.toUtf8()](const QByteArray& journal) {
        return withLine(journal, text);
    });
    if (!m_poster) {
        return;
    }
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QJsonObject content{{QStringLiteral("version"), ReportVersion},
                              {QStringLiteral("id"), id},
                              {QStringLiteral("time"), time},
                              {QStringLiteral("manager"), managerName},
                              {QStringLiteral("code"), code}};
    const QByteArray report = QJsonDocument(content).toJson(QJsonDocument::Compact);
    // Colons in a file name are trouble elsewhere; the names still sort by time.
    QString fileName = time + QLatin1Char('-') + id + QStringLiteral(".json");
    fileName.remove(QLatin1Char(':'));
    FileWriter::replace(m_folder + OutboxName + QLatin1Char('/') + fileName, report);
    QMetaObject::invokeMethod(
        m_poster, [poster = m_poster, fileName, report] { poster->add(fileName, report); });
}

void ReportOutbox::deliver(std::chrono::milliseconds limit)
{
    if (!m_poster) {
        return;
    }
    const auto settled = std::make_shared<std::promise<void>>();
    const std::future<void> isSettled = settled->get_future();
    QMetaObject::invokeMethod(m_poster, [poster = m_poster, settled] {
        poster->whenSettled([settled] { settled->set_value(); });
    });
    isSettled.wait_for(limit);
}

void ReportOutbox::startPosting(const QUrl& url, const OutboxLimits& limits)
{
    m_poster = new OutboxPoster(url, m_folder + OutboxName, limits);
    m_thread = std::make_unique<QThread>();
    m_poster->moveToThread(m_thread.get());
    QObject::connect(m_thread.get(), &QThread::started, m_poster, &OutboxPoster::start);
    QObject::connect(m_thread.get(), &QThread::finished, m_poster, &QObject::deleteLater);
    ThreadName::set(*m_thread, QStringLiteral("ReportOutbox"));
    m_thread->start();
}

} // namespace Platform
