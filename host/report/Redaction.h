// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/DeviceSurvey.h"
#include "host/Options.h"
#include "host/report/Report.h"

// Removes from a report what tells who and where its user is: account, nickname, addresses,
// servers, and names of devices, which may contain a user's name. Figures, versions and verdicts
// stay.
class Redaction
{
public:
    // The key turns texts into short codes. Equal texts have equal codes under the same key.
    Redaction(Options::Redaction level, const QByteArray& key);

    // With the key in this file, if the level needs one. Nothing if that can't be used; problem
    // then is one line.
    static std::optional<Redaction> withKeyIn(const QString& file, Options::Redaction level,
                                              QString* problem);

    Report redacted(const Report& report) const;
    // The document of a run, as --results writes it.
    QJsonObject redactedResults(const QJsonObject& document) const;
    DeviceSurvey redacted(const DeviceSurvey& survey) const;
    // Foreign text, such as a log: without these texts, if they have three characters or more and
    // stand for themselves, and without network addresses.
    QString redactedText(const QString& text, QStringList privateTexts) const;
    // The facts of a report that tell who and where its user is.
    static QStringList privateFacts(const Report& report);

private:
    QString replaced(const QString& text) const;
    QJsonValue replacedValue(const QJsonValue& value) const;
    QJsonObject redactedValues(const QJsonObject& values) const;
    void redactCheck(ReportCheck& check) const;
    void redactMeasurements(std::vector<Measurement>& measurements) const;

    Options::Redaction m_level;
    QByteArray m_key;
};
