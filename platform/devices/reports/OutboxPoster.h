// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/DeliveryOutcome.h"

#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QObject>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <deque>
#include <functional>
#include <vector>

class QNetworkReply;

namespace Platform {

// How long and how much the outbox keeps, and how often it tries.
struct OutboxLimits
{
    int maxReports = 100;
    int maxRuns = 50; // of the program that find a report waiting; no clock can be trusted
    std::chrono::milliseconds firstRetry = std::chrono::seconds(5);
    std::chrono::milliseconds longestRetry = std::chrono::hours(1);
    // From the connection to the answer.
    std::chrono::milliseconds postTimeout = std::chrono::seconds(15);
    // Of an answer, TLS included. Cuts every connection of the process to the server's port that
    // has received more; 0 cuts none.
    qint64 maxHeadBytes = 0;
};

// The server that reports are posted to.
struct ReportServer
{
    QUrl url;
    QByteArray token; // goes along as a bearer token (RFC 6750); empty: none
};

// Posts the reports of an outbox folder, one after the other, and removes each one that the server
// took. Once the server wants another token, it posts nothing more. Lives on a thread of its own,
// since reading the folder and starting TLS take time.
class OutboxPoster : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(OutboxPoster)

public:
    OutboxPoster(const ReportServer& server, const QString& folder, const OutboxLimits& limits);
    ~OutboxPoster() override;

    void start(); // with what earlier runs left
    void add(const QString& fileName, const QByteArray& report);
    // Calls settled as soon as no post is under way, nor one to come before the next retry.
    using Settled = std::function<void(const DeliveryOutcome& outcome)>;
    void whenSettled(Settled settled);

private:
    struct Report
    {
        QString fileName;
        QByteArray content; // empty: in the file
        int runs = 0;       // that found it waiting
    };

    void readFolder();
    QJsonObject readRuns() const;
    void writeRuns() const;
    void postNext();
    QByteArray nextContent();
    QNetworkRequest request(const QByteArray& content) const;
    void watchHead(QNetworkReply* reply);
    void finish(QNetworkReply* reply, const QString& fileName);
    void release();
    bool isSettled() const;
    void tellSettled();
    void retryLater(const QString& reason);
    void noteFailure(const QString& reason) const;
    void dropSurplus();
    void forget(const QString& fileName);
    void drop(const QString& fileName, const char* reason);

    const ReportServer m_server;
    const QString m_folder;
    const OutboxLimits m_limits;
    const QString m_runsPath;
    std::deque<Report> m_reports; // the oldest first
    std::chrono::milliseconds m_retry;
    QNetworkReply* m_reply = nullptr; // of the post under way
    QTimer m_retryTimer;
    std::vector<Settled> m_settled;
    DeliveryOutcome m_outcome;
    QNetworkRequest m_request; // without what differs between reports
    QNetworkAccessManager m_network;
};

} // namespace Platform
