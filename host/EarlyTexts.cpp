// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/EarlyTexts.h"

EarlyTexts::EarlyTexts(char* argv[], const QString& language)
    : m_application(m_count, argv), m_problem(m_languages.use(language))
{
}
