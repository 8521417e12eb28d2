// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportUpload.h"

#include "host/Console.h"
#include "host/report/Redaction.h"
#include "host/report/ReportJson.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QUrl>

#include <algorithm>

namespace {

// A shorter wait is no news.
constexpr std::chrono::milliseconds Unnoticed(200);

QString shownAddress(const QString& url)
{
    return Console::plainLine(QUrl(url).toDisplayString(QUrl::RemoveUserInfo | QUrl::RemoveQuery));
}

QString reasonOf(const Platform::DeliveryOutcome& outcome)
{
    if (outcome.isUnderWay) {
        return qtTrId("ID_Host_Upload_NoAnswer");
    }
    if (outcome.isTurnedAway) {
        return qtTrId("ID_Host_Upload_WrongToken").arg(outcome.status);
    }
    if (outcome.status > 0) {
        return QStringLiteral("HTTP %1").arg(outcome.status);
    }
    return outcome.reason.isEmpty() ? qtTrId("ID_Host_Upload_NoAnswer")
                                    : Console::plainLine(outcome.reason);
}

} // namespace

QByteArray ReportUpload::documentOf(const Report& report, const Options& options)
{
    const Report sent =
        options.isRedactionGiven
            ? report
            : Redaction(Options::Redaction::Personal, QByteArray()).redacted(report);
    return Console::plainJson(QJsonDocument(ReportJson::toJson(sent)), QJsonDocument::Compact)
        .toUtf8();
}

void ReportUpload::finish(const Deliver& deliver, const QString& url,
                          std::chrono::milliseconds limit)
{
    const std::chrono::milliseconds first = std::min(limit, Unnoticed);
    Platform::DeliveryOutcome outcome = deliver(first);
    if (outcome.isUnderWay && limit > first) {
        Console::printAside(qtTrId("ID_Host_Upload_Sending").arg(shownAddress(url)) +
                            QLatin1Char('\n'));
        outcome = deliver(limit - first);
    }
    if (outcome.isUnderWay || outcome.waiting > 0) {
        Console::printError(
            qtTrId("ID_Host_Upload_Kept").arg(shownAddress(url), reasonOf(outcome)));
    } else if (outcome.refused > 0) {
        Console::printError(
            qtTrId("ID_Host_Upload_Refused").arg(shownAddress(url), reasonOf(outcome)));
    }
}
