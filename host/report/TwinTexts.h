// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportTexts.h"

#include <memory>

// The texts of a report in the user's language, and in English for support if that is another one.
// Reads the files of the texts once.
class TwinTexts
{
public:
    explicit TwinTexts(const QString& language);

    const ReportTexts& own() const { return m_own; }
    const ReportTexts* english() const { return m_english.get(); } // null if own() is English

private:
    ReportTexts m_own;
    std::unique_ptr<ReportTexts> m_english;
};
