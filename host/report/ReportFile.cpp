// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportFile.h"

#include "host/report/ReportJson.h"
#include "platform/backend/FileNames.h"
#include "platform/backend/FileWriter.h"
#include "platform/backend/WholeFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <array>
#include <cerrno>
#include <cstdio>

namespace {

constexpr int KeyWords = 8;
constexpr int KeyBytes = KeyWords * static_cast<int>(sizeof(quint32));

QString line(const QString& path, const QString& problem)
{
    return qtTrId("ID_Host_File_NotWritten").arg(path, problem);
}

QString tooLarge(const QString& path)
{
    return qtTrId("ID_Host_File_NoReport").arg(path, qtTrId("ID_Host_File_TooLarge"));
}

QString contentOfInput(QByteArray* content, qint64 maxBytes)
{
    constexpr int ChunkBytes = 65536;
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) {
        return qtTrId("ID_Host_File_NotRead")
            .arg(QString(ReportFile::StandardInput), input.errorString());
    }
    QByteArray chunk;
    do {
        chunk = input.read(ChunkBytes);
        *content += chunk;
    } while (!chunk.isEmpty() && content->size() <= maxBytes);
    return content->size() > maxBytes ? tooLarge(QString(ReportFile::StandardInput)) : QString();
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

QString ReportFile::contentOf(const QString& path, QByteArray* content, qint64 maxBytes)
{
    if (path == StandardInput) {
        return contentOfInput(content, maxBytes);
    }
    if (QFileInfo(path).size() > maxBytes) {
        return tooLarge(path);
    }
    QString unreadable = Platform::FileNames::problem(path);
    if (unreadable.isEmpty() && !QFileInfo::exists(path)) {
        unreadable = qt_error_string(ENOENT);
    }
    if (unreadable.isEmpty()) {
        unreadable = Platform::WholeFile::read(path, content, maxBytes);
    }
    return unreadable.isEmpty() ? QString() : qtTrId("ID_Host_File_NotRead").arg(path, unreadable);
}

std::optional<Report> ReportFile::read(const QString& path, QString* error)
{
    QByteArray content;
    *error = contentOf(path, &content, MaxBytes);
    if (!error->isEmpty()) {
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
