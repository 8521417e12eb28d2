// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileNames.h"

#include <QRegularExpression>
#include <QStringList>

namespace Platform {

namespace {

const QLatin1String LongPathMark("//?/");

bool isDevice(const QString& name)
{
    // Windows also accepts superscript digits 1 to 3.
    static const QRegularExpression devices(
        QStringLiteral("^(CON|PRN|AUX|NUL|CONIN\\$|CONOUT\\$|(COM|LPT)[1-9\u00b9\u00b2\u00b3])$"),
        QRegularExpression::CaseInsensitiveOption);
    return devices.match(name.section(QLatin1Char('.'), 0, 0).trimmed()).hasMatch();
}

QString problemOfName(const QString& name)
{
    static const QRegularExpression letters(QStringLiteral("[<>:\"|?*\\x00-\\x1f]"));
    if (isDevice(name)) {
        return qtTrId("ID_Engine_File_DeviceName").arg(name);
    }
    if (name.contains(letters)) {
        return qtTrId("ID_Engine_File_BadLetter");
    }
    if (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' '))) {
        return qtTrId("ID_Engine_File_BadEnd");
    }
    return {};
}

} // namespace

QString FileNames::problem(const QString& path)
{
#ifdef Q_OS_WIN
    return problemOnWindows(path);
#else
    Q_UNUSED(path)
    return {};
#endif
}

QString FileNames::problemOnWindows(const QString& path)
{
    static const QRegularExpression drive(QStringLiteral("^[A-Za-z]:"));
    QString rest = path;
    rest.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (rest.startsWith(LongPathMark)) {
        rest.remove(0, LongPathMark.size());
    }
    rest.remove(drive);
    const QStringList names = rest.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QString& name : names) {
        const bool isStep = name == QLatin1String(".") || name == QLatin1String("..");
        const QString problem = isStep ? QString() : problemOfName(name);
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return {};
}

} // namespace Platform
