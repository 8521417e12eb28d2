// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportFile.h"

#include "host/report/ReportJson.h"
#include "platform/backend/FileNames.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QSaveFile>
#include <array>

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
    if (!folder.isDir()) {
        return line(path, qtTrId("ID_Host_File_NoFolder").arg(folder.absoluteFilePath()));
    }
    if (!folder.isWritable() || (file.exists() && !file.isWritable())) {
        return line(path, qtTrId("ID_Host_File_NoRight"));
    }
    return {};
}

QString ReportFile::write(const QString& path, const QByteArray& content)
{
    QString problem = problemOfWriting(path);
    if (!problem.isEmpty()) {
        return problem;
    }
    QSaveFile file(path);
    // commit() doesn't report errors of the last buffered bytes; flush() does.
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.flush() || !file.commit()) {
        return line(path, qtTrId("ID_Host_File_NameOther").arg(file.errorString()));
    }
    return {};
}

std::optional<Report> ReportFile::read(const QString& path, QString* error)
{
    QFile file(path);
    const QString nameProblem = Platform::FileNames::problem(path);
    if (!nameProblem.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        *error = qtTrId("ID_Host_File_NotRead")
                     .arg(path, nameProblem.isEmpty() ? file.errorString() : nameProblem);
        return std::nullopt;
    }
    const QByteArray content = file.read(MaxBytes + 1);
    QJsonParseError parsing = {};
    const QJsonDocument document = QJsonDocument::fromJson(content, &parsing);
    if (content.size() > MaxBytes || !document.isObject()) {
        const QString why = content.size() > MaxBytes ? qtTrId("ID_Host_File_TooLarge")
                            : document.isNull()       ? parsing.errorString()
                                                      : qtTrId("ID_Host_File_NoObject");
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
    QFile present(path);
    if (present.open(QIODevice::ReadOnly)) {
        QByteArray key = present.read(KeyBytes);
        if (key.size() == KeyBytes) {
            return key;
        }
    }
    std::array<quint32, KeyWords> words = {};
    QRandomGenerator::system()->fillRange(words.data(), KeyWords);
    const QByteArray key(reinterpret_cast<const char*>(words.data()), KeyBytes);
    QDir().mkpath(QFileInfo(path).absolutePath());
    *error = write(path, key);
    QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    return error->isEmpty() ? key : QByteArray();
}
