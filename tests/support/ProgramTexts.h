// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QTranslator>

// The texts of the program in one language, as long as it lives. The test's target depends on
// "translations".
class ProgramTexts
{
public:
    explicit ProgramTexts(const QString& language = QStringLiteral("en"))
    {
        if (!m_translator.load(QCoreApplication::applicationDirPath() +
                               QStringLiteral("/translations/envcheck_") + language)) {
            qFatal("there are no texts in %s", qUtf8Printable(language));
        }
        QCoreApplication::installTranslator(&m_translator);
    }

private:
    QTranslator m_translator; // removes itself
};
