// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/TwinTexts.h"

TwinTexts::TwinTexts(const QString& language) : m_own(language)
{
    const QString english = QStringLiteral("en");
    if (language != english) {
        m_english = std::make_unique<ReportTexts>(english);
    }
}
