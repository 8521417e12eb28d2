// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomDevices/ClassroomDevicesExport.h"
#include "platform/backend/ReportSink.h"
#include "platform/backend/ResultDocument.h"
#include "platform/devices/reports/OutboxPoster.h"

#include <QThread>
#include <memory>

namespace Platform {

// Keeps the results in their document, and writes every report code into a journal. If there is an
// address to post to, posts the codes, and the whole report if it is given one. GUI thread; files
// and the network are worked on elsewhere.
class ReportOutbox final : public ReportSink
{
public:
    // Journal and outbox stand in the folder. token: see ReportServer.
    ReportOutbox(const QString& resultsPath, const QString& folder, const QString& reportUrl,
                 const OutboxLimits& limits = {}, const QByteArray& token = {});
    ~ReportOutbox() override;

    void recordResult(const QString& key, const QJsonValue& value) override;
    void recordMeasurement(const QString& check, const QJsonObject& figures) override;
    void postCode(const QString& managerName, int code) override;

    // Posts a whole report (docs/report-format.md). It is in the outbox before it is on its way, so
    // that whatever ends the program loses nothing: that waits for the disk, at most for the limit.
    // For the end of the program.
    void postReport(const QByteArray& report, std::chrono::milliseconds limit);

    // Waits until the reports on their way have arrived or failed, at most for the limit. For the
    // end of the program.
    DeliveryOutcome deliver(std::chrono::milliseconds limit);

    const ResultDocument& results() const { return m_results; }

private:
    void startPosting(const ReportServer& server, const OutboxLimits& limits);
    QString newFileName();
    QString pathOf(const QString& fileName) const;
    void add(const QString& fileName, const QByteArray& report);

    ResultDocument m_results;
    const QString m_folder;
    int m_count = 0;                   // of the reports so far
    OutboxPoster* m_poster = nullptr;  // dies with its thread; null if nothing is posted
    std::unique_ptr<QThread> m_thread; // null if nothing is posted
};

} // namespace Platform
