// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "agent/MissingPieces.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(log, "envcheck")

const char TitleId[] = "ID_Kestrel_SystemTesting";

const QLatin1String Pictures[] = {
    QLatin1String(":/im/images/chat/radiobutton_unchecked.svg"),
    QLatin1String(":/im/images/chat/radiobutton_checked.svg"),
    QLatin1String(":/im/images/chat/radiobutton_unchecked_disabled.svg"),
    QLatin1String(":/im/images/chat/radiobutton_checked_disabled.svg"),
    QLatin1String(":/common/images/common/invite_more.svg")};

} // namespace

QStringList MissingPieces::find()
{
    QStringList result;
    if (qtTrId(TitleId) == QLatin1String(TitleId)) {
        result += QStringLiteral("texts (no QTranslator knows \"%1\")").arg(QLatin1String(TitleId));
    }
    const QDir sounds(QCoreApplication::applicationDirPath() +
                      QStringLiteral("/html/sounds/speakerCheck"));
    if (sounds.entryList({QStringLiteral("*.mp3")}, QDir::Files).isEmpty()) {
        result += QStringLiteral("sounds (no *.mp3 in \"%1\")").arg(sounds.path());
    }
    for (const QLatin1String picture : Pictures) {
        if (!QFile::exists(picture)) {
            result += QStringLiteral("picture \"%1\"").arg(picture);
        }
    }
    return result;
}

void MissingPieces::report()
{
    const QStringList missing = find();
    if (!missing.isEmpty()) {
        qCWarning(log,
                  "The check opens without what the client brings: %s. With CMake, "
                  "envcheck_deploy() of the package EnvCheck puts it there.",
                  qUtf8Printable(missing.join(QStringLiteral(", "))));
    }
}
