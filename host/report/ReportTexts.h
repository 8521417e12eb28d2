// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportWords.h"

#include <QTranslator>

struct Measurement;

// The words of a report in one language, whatever language the program itself speaks.
class ReportTexts
{
public:
    explicit ReportTexts(const QString& language); // one of Languages::available()

    QString language() const { return m_language; }
    bool isRightToLeft() const;
    QString text(const char* id) const;
    QString caption(const char* id) const; // without the colon that some captions end in

    // What people read in the place of a word of the report.
    template <typename Value>
    QString of(Value value) const
    {
        return caption(ReportWords::textId(value));
    }
    QString reason(const QString& word) const; // the word itself where there is no text of it
    QString changedValue(ChangedThing what, const QString& value) const;
    QString soundName(const QString& baseName) const; // as the speaker's answers have it
    QString yesOrNo(bool isYes) const;
    QString captionOf(CheckKind check, const QString& figure) const;
    QString valueOf(CheckKind check, const Measurement& measurement) const;

private:
    QString m_language;
    QTranslator m_translator;
};
