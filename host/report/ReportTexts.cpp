// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportTexts.h"

#include "host/Languages.h"
#include "host/SoundNames.h"
#include "host/report/Figures.h"
#include "host/report/Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

namespace {

// Unknown words are shown as they are.
template <typename Value>
QString textOf(const ReportTexts& texts, const QString& word)
{
    const std::optional<Value> value = ReportWords::find<Value>(word);
    return value ? texts.of(*value) : word;
}

} // namespace

ReportTexts::ReportTexts(const QString& language) : m_language(language)
{
    Languages::load(m_translator, language);
}

bool ReportTexts::isRightToLeft() const
{
    return QLocale(m_language).textDirection() == Qt::RightToLeft;
}

QString ReportTexts::text(const char* id) const
{
    const QString found = m_translator.translate(nullptr, id);
    return found.isEmpty() ? QLatin1String(id) : found;
}

QString ReportTexts::caption(const char* id) const
{
    const QString found = text(id);
    const bool hasColon = found.endsWith(QLatin1Char(':')) || found.endsWith(QChar(0xFF1A));
    return (hasColon ? found.left(found.size() - 1) : found).trimmed();
}

QString ReportTexts::timeOf(const QDateTime& time)
{
    return time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

QString ReportTexts::exactTimeOf(const QDateTime& time)
{
    return time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss t"));
}

QString ReportTexts::reason(const QString& word) const
{
    return textOf<Reason>(*this, word);
}

QString ReportTexts::changedValue(ChangedThing what, const QString& value) const
{
    switch (what) {
    case ChangedThing::Verdict:
        return textOf<Verdict>(*this, value);
    case ChangedThing::Grade:
        return textOf<NetworkGrade::Level>(*this, value);
    case ChangedThing::Delay:
        return Figures::toText(value.toDouble(), Figures::Unit::Ms);
    case ChangedThing::Device:
    case ChangedThing::OperatingSystem:
    case ChangedThing::Server:
        break;
    }
    return value;
}

QString ReportTexts::soundName(const QString& baseName) const
{
    const char* id = SoundNames::textId(baseName);
    return id ? text(id) : baseName;
}

QString ReportTexts::yesOrNo(bool isYes) const
{
    return text(isYes ? "ID_Host_Yes" : "ID_Host_No");
}

QString ReportTexts::captionOf(CheckKind check, const QString& figure) const
{
    const Figures::Figure* known = Figures::find(check, figure);
    return known ? of(known->name) : figure;
}

QString ReportTexts::valueOf(CheckKind check, const Measurement& measurement) const
{
    if (measurement.status != FigureStatus::Measured) {
        return text(ReportWords::textId(measurement.status)).arg(reason(measurement.reason));
    }
    const Figures::Figure* known = Figures::find(check, measurement.key);
    switch (measurement.value.type()) {
    case QJsonValue::Bool:
        return yesOrNo(measurement.value.toBool());
    case QJsonValue::Double:
        return Figures::toText(measurement.value.toDouble(),
                               known ? known->unit : Figures::Unit::None);
    case QJsonValue::String:
        return known && known->name == FigureName::SoundPlayed
                   ? soundName(measurement.value.toString())
                   : measurement.value.toString();
    case QJsonValue::Array:
        return QString::fromUtf8(
            QJsonDocument(measurement.value.toArray()).toJson(QJsonDocument::Compact));
    case QJsonValue::Object:
        return QString::fromUtf8(
            QJsonDocument(measurement.value.toObject()).toJson(QJsonDocument::Compact));
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return {};
}
