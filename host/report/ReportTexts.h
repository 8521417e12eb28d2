// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportWords.h"

#include <QDateTime>
#include <QTranslator>

struct Measurement;

// The texts of a report in one language, which may differ from that of the program.
class ReportTexts
{
public:
    explicit ReportTexts(const QString& language); // one of Languages::available()

    QString language() const { return m_language; }
    bool isRightToLeft() const;
    QString text(const char* id) const;
    QString caption(const char* id) const; // without a colon at its end

    // The text that stands for a word of the report.
    template <typename Value>
    QString of(Value value) const
    {
        return caption(ReportWords::textId(value));
    }
    // In local time, and in the same form in every language.
    static QString timeOf(const QDateTime& time);
    static QString exactTimeOf(const QDateTime& time); // with seconds and the time zone
    QString reason(const QString& word) const;         // the word itself if it has no text
    QString changedValue(ChangedThing what, const QString& value) const;
    QString soundName(const QString& baseName) const; // as in the answers of the speaker page
    QString yesOrNo(bool isYes) const;
    QString captionOf(CheckKind check, const QString& figure) const;
    QString valueOf(CheckKind check, const Measurement& measurement) const;

private:
    QString m_language;
    QTranslator m_translator;
};
