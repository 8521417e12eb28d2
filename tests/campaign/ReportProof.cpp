// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/ReportProof.h"

#include "host/report/ReportJson.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject objectIn(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

} // namespace

QString ReportProof::problemOfReport(const QString& file, const GivenAnswers& given)
{
    const QJsonObject document = objectIn(file);
    if (document.isEmpty()) {
        return QStringLiteral("there is no report");
    }
    QString error;
    if (!ReportJson::fromJson(document, &error)) {
        return QStringLiteral("the report is wrong: ") + error;
    }
    QMap<QString, QStringList> found;
    const QJsonArray checks = document.value(QLatin1String("checks")).toArray();
    for (const QJsonValue& check : checks) {
        found[check[QLatin1String("check")].toString()]
            << check[QLatin1String("answer")].toString();
    }
    for (auto each = given.cbegin(); each != given.cend(); ++each) {
        if (found.value(each.key()) != QStringList{each.value()}) {
            return QStringLiteral("%1 was answered %2, the report says \"%3\"")
                .arg(each.key(), each.value(), found.value(each.key()).join(QLatin1Char(',')));
        }
    }
    return {};
}

QString ReportProof::problemOfHistory(const QString& file, const QString& reportFile)
{
    QFile history(file);
    if (!history.open(QIODevice::ReadOnly)) {
        return reportFile.isEmpty() ? QString() : QStringLiteral("there is no history");
    }
    int count = 0;
    const QList<QByteArray> lines = history.readAll().trimmed().split('\n');
    for (const QByteArray& line : lines) {
        const QJsonObject run = QJsonDocument::fromJson(line).object();
        if (run.isEmpty() && !line.isEmpty()) {
            return QStringLiteral("a line of the history is damaged");
        }
        count += run.value(QLatin1String("report")).toString() == reportFile ? 1 : 0;
    }
    return reportFile.isEmpty() || count == 1
               ? QString()
               : QStringLiteral("the history has the run %1 times").arg(count);
}

bool ReportProof::isWholeOrMissing(const QString& jsonFile)
{
    return !QFile::exists(jsonFile) || !objectIn(jsonFile).isEmpty();
}
