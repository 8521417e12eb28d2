// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportFile.h"

#include "host/report/ReportJson.h"
#include "platform/backend/FileNames.h"

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
    if (file.exists() && !file.isFile()) {
        return line(path, QStringLiteral("it isn't an ordinary file; name another one"));
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
        return line(path, file.errorString() + QStringLiteral("; name another file"));
    }
    return {};
}

std::optional<Report> ReportFile::read(const QString& path, QString* error)
{
    QFile file(path);
    const QString nameProblem = Platform::FileNames::problem(path);
    if (!nameProblem.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: %2; name a report that a run has written")
                     .arg(path, nameProblem.isEmpty() ? file.errorString() : nameProblem);
        return std::nullopt;
    }
    const QByteArray content = file.read(MaxBytes + 1);
    QJsonParseError parsing = {};
    const QJsonDocument document = QJsonDocument::fromJson(content, &parsing);
    if (content.size() > MaxBytes || !document.isObject()) {
        const QString why = content.size() > MaxBytes ? QStringLiteral("it is too large")
                            : document.isNull()       ? parsing.errorString()
                                                      : QStringLiteral("it is no object");
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
