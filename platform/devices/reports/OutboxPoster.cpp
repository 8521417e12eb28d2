// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/reports/OutboxPoster.h"

#include "platform/backend/FileWriter.h"
#include "platform/backend/Log.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkReply>
#include <algorithm>

namespace Platform {

namespace {

constexpr qint64 MaxReportBytes = qint64(64) * 1024;
constexpr int FirstSuccess = 200;
constexpr int FirstBeyondSuccess = 300;

QDateTime timeOf(const QByteArray& report)
{
    const QJsonObject content = QJsonDocument::fromJson(report).object();
    return QDateTime::fromString(content.value(QLatin1String("time")).toString(),
                                 Qt::ISODateWithMs);
}

} // namespace

OutboxPoster::OutboxPoster(const QUrl& url, const QString& folder, const OutboxLimits& limits)
    : m_url(url),
      m_folder(folder),
      m_limits(limits),
      m_retry(limits.firstRetry),
      m_retryTimer(this),
      m_network(this)
{
    m_retryTimer.setSingleShot(true);
    connect(&m_retryTimer, &QTimer::timeout, this, &OutboxPoster::postNext);
}

OutboxPoster::~OutboxPoster() = default;

void OutboxPoster::start()
{
    readFolder();
    postNext();
}

void OutboxPoster::add(const QString& fileName, const QByteArray& report)
{
    const auto known = std::find_if(m_reports.begin(), m_reports.end(),
                                    [&](const Report& each) { return each.fileName == fileName; });
    if (known != m_reports.end()) {
        return; // found in the folder already
    }
    m_reports.push_back({fileName, report});
    dropSurplus();
    if (!m_retryTimer.isActive()) {
        postNext();
    }
}

void OutboxPoster::readFolder()
{
    const QDir folder(m_folder);
    const QStringList names =
        folder.entryList({QStringLiteral("*.json")}, QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            qCWarning(Log::reports).noquote()
                << "Not posted:" << file.fileName() << "-" << file.errorString();
            continue;
        }
        const QByteArray content = file.read(MaxReportBytes);
        if (!timeOf(content).isValid()) {
            drop(name, "it isn't a report");
            continue;
        }
        m_reports.push_back({name, content});
    }
    dropSurplus();
}

void OutboxPoster::postNext()
{
    while (!m_isPosting && !m_reports.empty() && isOutdated(m_reports.front())) {
        drop(m_reports.front().fileName, "it is too old");
        m_reports.pop_front();
    }
    if (m_isPosting || m_reports.empty()) {
        return;
    }
    m_isPosting = true;
    QNetworkRequest request(m_url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    request.setTransferTimeout(int(m_limits.transferTimeout.count()));
    QNetworkReply* reply = m_network.post(request, m_reports.front().content);
    // What the server has to say isn't kept, however much it is.
    connect(reply, &QNetworkReply::readyRead, reply, [reply] { reply->readAll(); });
    connect(reply, &QNetworkReply::finished, this,
            [this, reply, name = m_reports.front().fileName] { finish(reply, name); });
}

void OutboxPoster::finish(QNetworkReply* reply, const QString& fileName)
{
    reply->deleteLater();
    m_isPosting = false;
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply->error() == QNetworkReply::NoError && status >= FirstSuccess &&
        status < FirstBeyondSuccess) {
        forget(fileName);
        m_reports.pop_front();
        m_retry = m_limits.firstRetry;
        postNext();
        return;
    }
    retryLater(status > 0 ? QStringLiteral("status %1").arg(status) : reply->errorString());
}

void OutboxPoster::retryLater(const QString& reason)
{
    qCInfo(Log::reports).noquote()
        << "The report server at" << m_url.toDisplayString() << "took no report -" << reason;
    // Another report first next time, in case the server dislikes this one.
    std::rotate(m_reports.begin(), m_reports.begin() + 1, m_reports.end());
    m_retryTimer.start(m_retry);
    m_retry = std::min(m_retry * 2, m_limits.longestRetry);
}

// The one that is being posted stays at the front.
void OutboxPoster::dropSurplus()
{
    const auto first = m_isPosting ? 1 : 0;
    while (int(m_reports.size()) > m_limits.maxReports && int(m_reports.size()) > first) {
        const auto surplus = m_reports.begin() + first;
        drop(surplus->fileName, "the outbox is full");
        m_reports.erase(surplus);
    }
}

bool OutboxPoster::isOutdated(const Report& report) const
{
    return timeOf(report.content).msecsTo(QDateTime::currentDateTimeUtc()) >
           m_limits.maxAge.count();
}

// Behind the writing of the file, which may not have happened yet.
void OutboxPoster::forget(const QString& fileName)
{
    FileWriter::enqueue([path = QDir(m_folder).filePath(fileName)] { QFile::remove(path); });
}

void OutboxPoster::drop(const QString& fileName, const char* reason)
{
    qCWarning(Log::reports).noquote() << "Report" << fileName << "is dropped:" << reason;
    forget(fileName);
}

} // namespace Platform
