// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
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

    QString outcome(const QString& word) const;
    QString verdict(const QString& word) const;
    QString answer(const QString& word) const;
    QString grade(const QString& word) const;
    QString checkName(const QString& key) const;
    QString contradiction(const QString& word) const;
    QString reason(const QString& word) const; // the word itself where there is no text of it
    QString changed(const QString& what) const;
    QString changedValue(const QString& what, const QString& value) const;
    QString soundName(const QString& baseName) const; // as the speaker's answers have it
    QString yesOrNo(bool isYes) const;
    QString captionOf(const QString& check, const QString& figure) const;
    QString valueOf(const QString& check, const Measurement& measurement) const;

    static bool isReason(const QString& word);

private:
    QString m_language;
    QTranslator m_translator;
};
