// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/OldReports.h"

#include <QDir>
#include <QHash>
#include <QRegularExpression>
#include <algorithm>

QStringList OldReports::of(const QString& folder, const QStringList& runs, const QDateTime& now)
{
    static const QRegularExpression ownName(
        QStringLiteral("^\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d-\\d{3}\\.json$"));
    QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    files.erase(std::remove_if(files.begin(), files.end(),
                               [](const QFileInfo& file) {
                                   return !ownName.match(file.fileName()).hasMatch();
                               }),
                files.end());
    QHash<QString, int> placeOf; // files that belong to no run come first
    for (int i = 0; i < runs.size(); ++i) {
        placeOf.insert(runs.at(i), i + 1);
    }
    std::stable_sort(
        files.begin(), files.end(), [&placeOf](const QFileInfo& a, const QFileInfo& b) {
            return placeOf.value(a.absoluteFilePath()) < placeOf.value(b.absoluteFilePath());
        });
    const QDateTime oldest = now.addDays(-MaxAgeDays);
    QStringList result;
    for (int i = 0; i + KeptAlways < files.size(); ++i) {
        const bool isSurplus = i + MaxReports < files.size();
        if (isSurplus || files.at(i).lastModified() < oldest) {
            result << files.at(i).absoluteFilePath();
        }
    }
    return result;
}
