// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/reports/OutboxPoster.h"

#include "platform/backend/FileWriter.h"
#include "platform/backend/Log.h"
#include "platform/backend/WholeFile.h"
#include "platform/devices/reports/FloodGate.h"
#include "platform/devices/reports/ServerTrust.h"

#include <QDateTime>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkReply>
#include <algorithm>
#include <utility>

namespace Platform {

namespace {

constexpr qint64 MaxReportBytes = qint64(4) * 1024 * 1024; // a larger file is no report
constexpr std::chrono::milliseconds HeadWatch(100);
constexpr int HttpPort = 80;
constexpr int HttpsPort = 443;

// Of a code, or of a whole report.
bool isReport(const QByteArray& content)
{
    const QJsonObject report = QJsonDocument::fromJson(content).object();
    const bool isWhole = report.contains(QLatin1String("format"));
    const QLatin1String time = isWhole ? QLatin1String("finished") : QLatin1String("time");
    return QDateTime::fromString(report.value(time).toString(), Qt::ISODateWithMs).isValid();
}

// What a status means for the report that was posted.
enum class Answer { Taken, NeverTaken, WrongToken, TryLater };

Answer answerOf(int status)
{
    constexpr int FirstSuccess = 200;
    constexpr int FirstBeyondSuccess = 300;
    switch (status) {
    case 401:
    case 403:
        return Answer::WrongToken;
    case 409: // the server has it already
        return Answer::Taken;
    case 413: // too large
    case 422: // no report by the server's rules
        return Answer::NeverTaken;
    default:
        return status >= FirstSuccess && status < FirstBeyondSuccess ? Answer::Taken
                                                                     : Answer::TryLater;
    }
}

} // namespace

OutboxPoster::OutboxPoster(const ReportServer& server, const QString& folder,
                           const OutboxLimits& limits)
    : m_server(server),
      m_folder(folder),
      m_limits(limits),
      m_runsPath(folder + QStringLiteral("-runs.json")),
      m_retry(limits.firstRetry),
      m_retryTimer(this),
      m_request(server.url),
      m_network(this)
{
    m_request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    // Redirects are not followed: another server must get neither the report nor the token.
    m_request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                           QNetworkRequest::ManualRedirectPolicy);
    if (!server.token.isEmpty()) {
        m_request.setRawHeader("Authorization", "Bearer " + server.token);
    }
    m_retryTimer.setSingleShot(true);
    connect(&m_retryTimer, &QTimer::timeout, this, &OutboxPoster::postNext);
}

OutboxPoster::~OutboxPoster() = default;

void OutboxPoster::start()
{
    ServerTrust::addTo(m_request);
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
    m_reports.push_back({fileName, report, 0});
    dropSurplus();
    if (!m_retryTimer.isActive()) {
        postNext();
    }
}

void OutboxPoster::whenSettled(Settled settled)
{
    m_settled.push_back(std::move(settled));
    tellSettled();
}

bool OutboxPoster::isSettled() const
{
    return !m_reply && (m_reports.empty() || m_retryTimer.isActive() || m_outcome.isTurnedAway);
}

void OutboxPoster::tellSettled()
{
    if (isSettled()) {
        m_outcome.waiting = int(m_reports.size());
        for (const Settled& settled : std::exchange(m_settled, {})) {
            settled(m_outcome);
        }
    }
}

void OutboxPoster::readFolder()
{
    const QDir folder(m_folder);
    const QJsonObject runs = readRuns();
    const QStringList names =
        folder.entryList({QStringLiteral("*.json")}, QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString& name : names) {
        QByteArray content;
        const QString problem =
            WholeFile::read(folder.filePath(name), &content, MaxReportBytes + 1);
        if (!problem.isEmpty()) {
            qCWarning(Log::reports).noquote()
                << "Not posted:" << folder.filePath(name) << "-" << problem;
            continue;
        }
        if (content.size() > MaxReportBytes || !isReport(content)) {
            drop(name, "it isn't a report");
            continue;
        }
        const int count = std::clamp(runs.value(name).toInt(), 0, m_limits.maxRuns) + 1;
        if (count > m_limits.maxRuns) {
            drop(name, "it has waited for too many runs");
            continue;
        }
        m_reports.push_back({name, {}, count});
    }
    // The names begin with the time, but a clock may have been wrong.
    std::stable_sort(m_reports.begin(), m_reports.end(),
                     [](const Report& a, const Report& b) { return a.runs > b.runs; });
    dropSurplus();
    if (!m_reports.empty() || !runs.isEmpty()) {
        writeRuns();
    }
}

// How many runs have found each report waiting. If the file is lost, they are counted anew.
QJsonObject OutboxPoster::readRuns() const
{
    QByteArray content;
    WholeFile::read(m_runsPath, &content);
    return QJsonDocument::fromJson(content).object();
}

void OutboxPoster::writeRuns() const
{
    QJsonObject runs;
    for (const Report& report : m_reports) {
        runs.insert(report.fileName, report.runs);
    }
    FileWriter::replace(m_runsPath, QJsonDocument(runs).toJson(QJsonDocument::Compact));
}

// Of the report to post now; empty if there is none. Those that are gone were posted by another
// run.
QByteArray OutboxPoster::nextContent()
{
    while (!m_reply && !m_outcome.isTurnedAway && !m_reports.empty()) {
        QByteArray content = m_reports.front().content;
        if (content.isEmpty()) {
            const QString path = QDir(m_folder).filePath(m_reports.front().fileName);
            WholeFile::read(path, &content, MaxReportBytes);
        }
        if (!content.isEmpty()) {
            return content;
        }
        m_reports.pop_front();
    }
    return {};
}

void OutboxPoster::postNext()
{
    const QByteArray content = nextContent();
    if (content.isEmpty()) {
        tellSettled();
        return;
    }
    QNetworkReply* reply = m_network.post(request(content), content);
    m_reply = reply;
    const auto end = [this, reply, name = m_reports.front().fileName] { finish(reply, name); };
    // Qt's own timeout starts anew with every byte.
    QTimer::singleShot(m_limits.postTimeout, Qt::CoarseTimer, reply, end);
    // The status is all that counts: what else the server has to say isn't read.
    reply->setReadBufferSize(1);
    connect(reply, &QNetworkReply::metaDataChanged, reply, end);
    connect(reply, &QNetworkReply::finished, reply, end);
    if (m_limits.maxHeadBytes > 0) {
        watchHead(reply);
    }
}

// Qt reads headers without end, a core at a time.
void OutboxPoster::watchHead(QNetworkReply* reply)
{
    const bool isEncrypted = m_server.url.scheme() == QLatin1String("https");
    const auto port = quint16(m_server.url.port(isEncrypted ? HttpsPort : HttpPort));
    auto* const watch = new QTimer(reply);
    connect(watch, &QTimer::timeout, reply, [this, reply, port] {
        if (m_reply == reply && FloodGate::cutAbove(m_limits.maxHeadBytes, port)) {
            release();
            retryLater(QStringLiteral("its answer has more than %1 KiB of headers")
                           .arg(m_limits.maxHeadBytes / 1024));
        }
    });
    watch->start(HeadWatch);
}

QNetworkRequest OutboxPoster::request(const QByteArray& content) const
{
    QNetworkRequest request = m_request;
    // A report whose answer got lost is posted again; by this the server knows it.
    const QJsonObject report = QJsonDocument::fromJson(content).object();
    const QString id = report.value(QLatin1String("id")).toString().simplified();
    request.setRawHeader("Idempotency-Key", id.toUtf8());
    return request;
}

void OutboxPoster::finish(QNetworkReply* reply, const QString& fileName)
{
    if (m_reply != reply) {
        return; // it has ended already
    }
    release();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const Answer answer = answerOf(status);
    if (answer != Answer::Taken) {
        const bool hasError = status == 0 && reply->error() != QNetworkReply::NoError;
        m_outcome.status = status;
        m_outcome.reason = hasError ? reply->errorString() : QString();
    }
    switch (answer) {
    case Answer::NeverTaken:
        ++m_outcome.refused;
        noteFailure(QStringLiteral("status %1, for good").arg(status));
        [[fallthrough]];
    case Answer::Taken:
        forget(fileName);
        m_reports.pop_front();
        m_retry = m_limits.firstRetry;
        postNext();
        return;
    case Answer::WrongToken:
        m_outcome.isTurnedAway = true;
        noteFailure(QStringLiteral("status %1, nothing more is posted").arg(status));
        tellSettled();
        return;
    case Answer::TryLater:
        retryLater(status > 0                   ? QStringLiteral("status %1").arg(status)
                   : m_outcome.reason.isEmpty() ? QStringLiteral("no answer in time")
                                                : m_outcome.reason);
        return;
    }
}

void OutboxPoster::release()
{
    std::exchange(m_reply, nullptr)->deleteLater(); // ends the connection
}

void OutboxPoster::retryLater(const QString& reason)
{
    noteFailure(reason);
    // Another report first next time, in case the server dislikes this one.
    std::rotate(m_reports.begin(), m_reports.begin() + 1, m_reports.end());
    m_retryTimer.start(m_retry);
    m_retry = std::min(m_retry * 2, m_limits.longestRetry);
    tellSettled();
}

void OutboxPoster::noteFailure(const QString& reason) const
{
    qCInfo(Log::reports).noquote()
        << "The report server at" << m_server.url.toDisplayString() << "took no report -" << reason;
}

// The one that is being posted stays at the front.
void OutboxPoster::dropSurplus()
{
    const auto first = m_reply ? 1 : 0;
    while (int(m_reports.size()) > m_limits.maxReports && int(m_reports.size()) > first) {
        const auto surplus = m_reports.begin() + first;
        drop(surplus->fileName, "the outbox is full");
        m_reports.erase(surplus);
    }
}

void OutboxPoster::forget(const QString& fileName)
{
    FileWriter::remove(QDir(m_folder).filePath(fileName));
}

void OutboxPoster::drop(const QString& fileName, const char* reason)
{
    qCWarning(Log::reports).noquote() << "Report" << fileName << "is dropped:" << reason;
    forget(fileName);
}

} // namespace Platform
