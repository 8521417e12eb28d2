// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/Languages.h"

#include <QCoreApplication>

// The texts for messages that come before the application object, which depends on the options and
// on the display. They are found with an application object of their own, so this must be gone
// before the real one is made.
class EarlyTexts
{
public:
    // Without texts in that language, those of the system's language are used.
    EarlyTexts(char* argv[], const QString& language);

    bool areMissing() const { return m_languages.current().isEmpty(); }
    QString problem() const { return m_problem; } // of Languages::use()

private:
    int m_count = 1; // Qt has options of its own, so it sees only the name of the program
    QCoreApplication m_application;
    Languages m_languages;
    QString m_problem;
};
