// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportFile.h"

#include "host/report/ReportJson.h"
#include "platform/backend/FileNames.h"
#include "platform/backend/FileWriter.h"
#include "platform/backend/WholeFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <array>
#include <cerrno>

namespace {

constexpr int KeyWords = 8;
constexpr int KeyBytes = KeyWords * static_cast<int>(sizeof(quint32));

QString line(const QString& path, const QString& problem)
{
    return qtTrId("ID_Host_File_NotWritten").arg(path, problem);
}

} // namespace

QString ReportFile::problemOfWriting(const QString& path)
{
    const QString nameProblem = Platform::FileNames::problem(path);
    if (!nameProblem.isEmpty()) {
        return line(path, qtTrId("ID_Host_File_NameOther").arg(nameProblem));
    }
    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    if (file.isDir()) {
        return line(path, qtTrId("ID_Host_File_IsFolder"));
    }
    if (file.exists() && !file.isFile()) {
        return line(path, qtTrId("ID_Host_File_NotOrdinary"));
    }
    const QString wrong = Platform::WholeFile::problem(path);
    if (!wrong.isEmpty()) {
        return line(path, qtTrId("ID_Host_File_NameOther").arg(wrong));
    }
    if (!folder.isDir()) {
        return line(path, qtTrId("ID_Host_File_NoFolder").arg(folder.absoluteFilePath()));
    }
    if (!folder.isWritable() || (file.exists() && !file.isWritable())) {
        return line(path, qtTrId("ID_Host_File_NoRight"));
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
                             : line(path, qtTrId("ID_Host_File_NameOther").arg(problem));
}

std::optional<Report> ReportFile::read(const QString& path, QString* error)
{
    if (QFileInfo(path).size() > MaxBytes) {
        *error = qtTrId("ID_Host_File_NoReport").arg(path, qtTrId("ID_Host_File_TooLarge"));
        return std::nullopt;
    }
    QByteArray content;
    QString unreadable = Platform::FileNames::problem(path);
    if (unreadable.isEmpty() && !QFileInfo::exists(path)) {
        unreadable = qt_error_string(ENOENT);
    }
    if (unreadable.isEmpty()) {
        unreadable = Platform::WholeFile::read(path, &content, MaxBytes);
    }
    if (!unreadable.isEmpty()) {
        *error = qtTrId("ID_Host_File_NotRead").arg(path, unreadable);
        return std::nullopt;
    }
    QJsonParseError parsing = {};
    const QJsonDocument document = QJsonDocument::fromJson(content, &parsing);
    if (!document.isObject()) {
        const QString why =
            document.isNull() ? parsing.errorString() : qtTrId("ID_Host_File_NoObject");
        *error = qtTrId("ID_Host_File_NoReport").arg(path, why);
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
