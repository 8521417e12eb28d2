// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTranslator>

// The texts of the program and of Qt in one of the available languages. The translators are
// installed while this object lives. GUI thread only.
class Languages
{
public:
    Languages();
    ~Languages();
    Languages(const Languages&) = delete;
    Languages& operator=(const Languages&) = delete;

    static QStringList available(); // such as "en", "zh_CN"

    // Loads the program's own texts in an available language; false if they can't be read.
    static bool load(QTranslator& translator, const QString& language);

    // Uses the given language, or if none is given the one nearest to the system's, or English.
    // Returns nothing, or one line that says why it failed. If there is no such language, the
    // system's is used.
    QString use(const QString& language);
    QString current() const { return m_current; } // empty if no texts are used

private:
    QString install(const QString& language);

    QString m_current;
    QTranslator m_texts;
    QTranslator m_qtTexts;
};
