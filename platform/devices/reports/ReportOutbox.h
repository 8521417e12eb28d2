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

// Keeps the results in their document, writes every report code into a journal, and posts it if
// there is an address to post to. GUI thread; files and the network are worked on elsewhere.
class ReportOutbox final : public ReportSink
{
public:
    // Journal and outbox stand in the folder.
    ReportOutbox(const QString& resultsPath, const QString& folder, const QString& reportUrl,
                 const OutboxLimits& limits = {});
    ~ReportOutbox() override;

    void recordResult(const QString& key, const QJsonValue& value) override;
    void recordMeasurement(const QString& check, const QJsonObject& figures) override;
    void postCode(const QString& managerName, int code) override;

    // Waits until the reports on their way have arrived or failed, at most for the limit. For the
    // end of the program.
    void deliver(std::chrono::milliseconds limit);

    const ResultDocument& results() const { return m_results; }

private:
    void startPosting(const QUrl& url, const OutboxLimits& limits);

    ResultDocument m_results;
    const QString m_folder;
    OutboxPoster* m_poster = nullptr;  // dies with its thread; null if nothing is posted
    std::unique_ptr<QThread> m_thread; // null if nothing is posted
};

} // namespace Platform
