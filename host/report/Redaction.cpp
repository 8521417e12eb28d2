// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/Redaction.h"

#include "host/SoundNames.h"
#include "host/report/ReportFile.h"
#include "host/report/ReportSeries.h"
#include "platform/backend/ResultKeys.h"

#include <QMessageAuthenticationCode>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int CodeLength = 12;
const QLatin1String Mark("#");
// Facts of the machine that don't identify its user.
const QStringList PlainFacts = {QStringLiteral("operatingSystem"), QStringLiteral("processor")};

constexpr int LeastTextLength = 3; // a shorter one stands in many words
const QLatin1String RemovedMark("[removed]");
// IPv4; IPv6 and hardware addresses, but no times.
const char* const Addresses =
    R"((?<![\d.])(?:\d{1,3}\.){3}\d{1,3}(?!\.?\d)|)"
    R"((?<![\w:])(?=[\da-f:]*::|(?:[\da-f]+:){4})(?:[\da-f]{0,4}:){2,7}[\da-f]{0,4}(?![\w:]))";

// The text, but not as a part of a longer word: "mic" isn't found in "microphone". Other scripts
// than ours may have no gaps between words.
QRegularExpression wholeWords(const QString& text)
{
    static const QRegularExpression latin(QStringLiteral("[A-Za-z0-9]"));
    const auto edge = [](const QString& sign, const char* pattern) {
        return latin.match(sign).hasMatch() ? QLatin1String(pattern) : QLatin1String();
    };
    return QRegularExpression(
        edge(text.left(1), "(?<![A-Za-z0-9])") + QRegularExpression::escape(text) +
            edge(text.right(1), "(?![A-Za-z0-9])"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
}

// Whether a value of a change is a word or a figure, and no text of somebody's.
bool isPlain(ChangedThing what, const QString& value)
{
    bool isNumber = false;
    switch (what) {
    case ChangedThing::Verdict:
        return ReportWords::find<Verdict>(value).has_value();
    case ChangedThing::Grade:
        return ReportWords::find<NetworkGrade::Level>(value).has_value();
    case ChangedThing::Delay:
        value.toDouble(&isNumber);
        return isNumber;
    case ChangedThing::OperatingSystem:
        return true;
    case ChangedThing::Device:
    case ChangedThing::Server:
        break;
    }
    return false;
}

} // namespace

Redaction::Redaction(Options::Redaction level, const QByteArray& key) : m_level(level), m_key(key)
{
}

std::optional<Redaction> Redaction::withKeyIn(const QString& file, Options::Redaction level,
                                              QString* problem)
{
    if (level != Options::Redaction::Hash) {
        return Redaction(level, {});
    }
    const QByteArray key = ReportFile::redactionKey(file, problem);
    return key.isEmpty() ? std::nullopt : std::make_optional<Redaction>(level, key);
}

Report Redaction::redacted(const Report& report) const
{
    if (m_level == Options::Redaction::None) {
        return report;
    }
    // Also if the report says that it is redacted: anybody can write that into a file.
    Report result = report;
    result.redaction = m_level;
    result.scenario = replaced(report.scenario);
    for (auto fact = result.facts.begin(); fact != result.facts.end(); ++fact) {
        if (!PlainFacts.contains(fact.key())) {
            fact.value() = replacedValue(fact.value());
        }
    }
    for (ReportCheck& check : result.checks) {
        redactCheck(check);
    }
    for (ReportChange& change : result.changes) {
        for (QString* value : {&change.before, &change.now}) {
            *value = isPlain(change.what, *value) ? *value : replaced(*value);
        }
    }
    return result;
}

QJsonObject Redaction::redactedResults(const QJsonObject& document) const
{
    if (m_level == Options::Redaction::None) {
        return document;
    }
    QJsonObject result = document;
    for (const QLatin1String& section :
         {Platform::ResultKeys::Results, Platform::ResultKeys::Measurements,
          Platform::ResultKeys::Later}) {
        QJsonObject checks = document.value(section).toObject();
        for (auto check = checks.begin(); check != checks.end(); ++check) {
            check.value() = redactedValues(check.value().toObject());
        }
        if (document.contains(section)) {
            result.insert(section, checks);
        }
    }
    return result;
}

QJsonObject Redaction::redactedValues(const QJsonObject& values) const
{
    using namespace Platform;
    // The texts of delay and loss, and the words of states and causes.
    static const QStringList PlainKeys = {ResultKeys::Delay, ResultKeys::Loss,
                                          ReportWords::of(FigureName::SoundPlayed)};
    QJsonObject result = values;
    for (auto value = result.begin(); value != result.end(); ++value) {
        const QString word = value.value().toString();
        const bool isWord = ReportWords::find<Reason>(word) || ReportWords::find<Cause>(word);
        const std::optional<ReportSeries> series = ReportSeries::of(value.key(), value.value());
        if (series) {
            value.value() = series->toJson();
        } else if (!PlainKeys.contains(value.key()) && !isWord) {
            value.value() = replacedValue(value.value());
        }
    }
    return result;
}

DeviceSurvey Redaction::redacted(const DeviceSurvey& survey) const
{
    if (m_level == Options::Redaction::None) {
        return survey;
    }
    DeviceSurvey result = survey;
    for (DeviceSurvey::Devices* list : {&result.cameras, &result.microphones, &result.speakers}) {
        for (DeviceSurvey::Device& device : *list) {
            device.info.id = replaced(device.info.id);
            device.info.name = replaced(device.info.name);
        }
    }
    return result;
}

QString Redaction::redactedText(const QString& text, QStringList privateTexts) const
{
    if (m_level == Options::Redaction::None) {
        return text;
    }
    const auto mark = [this](const QString& found) {
        const QString code = replaced(found);
        return code.isEmpty() ? QString(RemovedMark) : code;
    };
    // The longest first: another one may be a part of it.
    privateTexts.removeDuplicates();
    std::sort(privateTexts.begin(), privateTexts.end(),
              [](const QString& a, const QString& b) { return a.size() > b.size(); });
    QString result = text;
    for (const QString& found : qAsConst(privateTexts)) {
        if (found.size() >= LeastTextLength) {
            result.replace(wholeWords(found), mark(found));
        }
    }
    static const QRegularExpression addresses(QLatin1String(Addresses),
                                              QRegularExpression::CaseInsensitiveOption);
    for (QRegularExpressionMatch match = addresses.match(result); match.hasMatch();
         match = addresses.match(result, match.capturedStart() + 1)) {
        result.replace(match.capturedStart(), match.capturedLength(), mark(match.captured()));
    }
    return result;
}

QStringList Redaction::privateFacts(const Report& report)
{
    QStringList texts;
    for (auto fact = report.facts.begin(); fact != report.facts.end(); ++fact) {
        if (!PlainFacts.contains(fact.key()) && fact.value().isString()) {
            texts << fact.value().toString();
        }
    }
    return texts;
}

QString Redaction::replaced(const QString& text) const
{
    if (text.isEmpty() || m_level == Options::Redaction::Personal) {
        return {};
    }
    const QByteArray code =
        QMessageAuthenticationCode::hash(text.toUtf8(), m_key, QCryptographicHash::Sha256)
            .toHex()
            .left(CodeLength);
    return Mark + QString::fromLatin1(code);
}

// Numbers and booleans don't identify a person; a list or an object might contain texts.
QJsonValue Redaction::replacedValue(const QJsonValue& value) const
{
    if (value.isDouble() || value.isBool() || value.isNull()) {
        return value;
    }
    return value.isString() ? replaced(value.toString()) : QString();
}

void Redaction::redactCheck(ReportCheck& check) const
{
    check.device = replaced(check.device);
    redactMeasurements(check.measurements);
    redactMeasurements(check.later);
}

void Redaction::redactMeasurements(std::vector<Measurement>& measurements) const
{
    for (Measurement& measurement : measurements) {
        const bool isSound =
            ReportWords::find<FigureName>(measurement.key) == FigureName::SoundPlayed &&
            SoundNames::textId(measurement.value.toString());
        const std::optional<ReportSeries> series =
            ReportSeries::of(measurement.key, measurement.value);
        if (series) {
            measurement.value = series->toJson();
        } else if (!isSound) {
            measurement.value = replacedValue(measurement.value);
        }
        if (!ReportWords::find<Reason>(measurement.reason)) {
            measurement.reason = replaced(measurement.reason);
        }
    }
}
