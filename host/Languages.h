// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTranslator>

// The texts of the program and of Qt in one of the languages that the program brings. Keeps the
// translators installed while it lives. GUI thread only.
class Languages
{
public:
    Languages();
    ~Languages();
    Languages(const Languages&) = delete;
    Languages& operator=(const Languages&) = delete;

    static QStringList available(); // such as "en", "zh_CN"

    // The program's own texts in one of the available languages; false where they can't be read.
    static bool load(QTranslator& translator, const QString& language);

    // Takes the nearest to the system's language, otherwise English, or exactly the language that
    // is asked for. Returns nothing, or one line that says why it can't.
    QString use(const QString& language);
    QString current() const { return m_current; }

private:
    QString m_current;
    QTranslator m_texts;
    QTranslator m_qtTexts;
};
