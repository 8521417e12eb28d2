// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportFile.h"

#include "host/report/ReportJson.h"
#include "platform/backend/FileNames.h"
#include "platform/backend/FileWriter.h"
#include "platform/backend/WholeFile.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <array>

namespace {

constexpr int KeyWords = 8;
constexpr int KeyBytes = KeyWords * static_cast<int>(sizeof(quint32));

QString line(const QString& path, const QString& problem)
{
    return QStringLiteral("%1 can't be written: %2").arg(path, problem);
}

} // namespace

QString ReportFile::problemOfWriting(const QString& path)
{
    const QString nameProblem = Platform::FileNames::problem(path);
    if (!nameProblem.isEmpty()) {
        return line(path, nameProblem + QStringLiteral("; name another file"));
    }
    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    if (file.isDir()) {
        return line(path, QStringLiteral("it is a folder; name a file in it"));
    }
    const QString wrong = Platform::WholeFile::problem(path);
    if (!wrong.isEmpty()) {
        return line(path, wrong + QStringLiteral("; name another file"));
    }
    if (!folder.isDir()) {
        return line(path, QStringLiteral("there is no folder %1; make it, or name another file")
                              .arg(folder.absoluteFilePath()));
    }
    if (!folder.isWritable() || (file.exists() && !file.isWritable())) {
        return line(path, QStringLiteral("you have no right to; name another file"));
    }
    return {};
}

QString ReportFile::write(const QString& path, const QByteArray& content, int timeoutMs)
{
    QString problem = problemOfWriting(path);
    if (!problem.isEmpty()) {
        return problem;
    }
    problem = Platform::FileWriter::replaceNow(path, content, timeoutMs);
    return problem.isEmpty() ? QString()
                             : line(path, problem + QStringLiteral("; name another file"));
}

std::optional<Report> ReportFile::read(const QString& path, QString* error)
{
    QByteArray content;
    QString unreadable = Platform::FileNames::problem(path);
    if (unreadable.isEmpty() && !QFileInfo::exists(path)) {
        unreadable = QStringLiteral("there is no such file");
    }
    if (unreadable.isEmpty()) {
        unreadable = Platform::WholeFile::read(path, &content, MaxBytes);
    }
    if (!unreadable.isEmpty()) {
        *error =
            QStringLiteral("%1: %2; name a report that a run has written").arg(path, unreadable);
        return std::nullopt;
    }
    QJsonParseError parsing = {};
    const QJsonDocument document = QJsonDocument::fromJson(content, &parsing);
    if (!document.isObject()) {
        const QString why =
            document.isNull() ? parsing.errorString() : QStringLiteral("it is no object");
        *error = QStringLiteral("%1: it isn't a report in JSON (%2); name one that a run has "
                                "written")
                     .arg(path, why);
        return std::nullopt;
    }
    QString problem;
    std::optional<Report> report = ReportJson::fromJson(document.object(), &problem);
    if (!report) {
        *error = QStringLiteral("%1: %2").arg(path, problem);
    }
    return report;
}

QByteArray ReportFile::redactionKey(const QString& path, QString* error)
{
    QByteArray present;
    const QString unreadable = Platform::WholeFile::read(path, &present);
    if (!unreadable.isEmpty()) {
        *error = line(path, unreadable);
        return {};
    }
    if (present.size() >= KeyBytes) {
        return present.left(KeyBytes);
    }
    std::array<quint32, KeyWords> words = {};
    QRandomGenerator::system()->fillRange(words.data(), KeyWords);
    const QByteArray key(reinterpret_cast<const char*>(words.data()), KeyBytes);
    Platform::WholeFile::makeFolder(QFileInfo(path).absolutePath());
    *error = write(path, key);
    return error->isEmpty() ? key : QByteArray();
}
