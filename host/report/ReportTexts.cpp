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
#include <algorithm>

namespace {

// A word of the report's data and the id of its text.
struct Word
{
    const char* word;
    const char* id;
};

constexpr Word Outcomes[] = {
    {"passed", "ID_Host_Outcome_Passed"},
    {"failed", "ID_Host_Outcome_Failed"},
    {"leftEarly", "ID_Host_Outcome_LeftEarly"},
    {"putOut", "ID_Host_Outcome_PutOut"},
};
constexpr Word Verdicts[] = {
    {"passed", "ID_CheckResultPage_Normal"},
    {"failed", "ID_CheckResultPage_Abnormal"},
    {"notTested", "ID_CameraPage_NotDetected"},
};
constexpr Word Answers[] = {
    {"yes", "ID_Host_Yes"},
    {"no", "ID_Host_No"},
    {"none", "ID_Host_NoAnswer"},
};
constexpr Word Grades[] = {
    {"good", "ID_Host_Grade_Good"},
    {"fair", "ID_Host_Grade_Fair"},
    {"poor", "ID_Host_Grade_Poor"},
};
constexpr Word Checks[] = {
    {"network", "ID_CheckResultPage_System"},    {"camera", "ID_Camera_Check"},
    {"speaker", "ID_CheckResultPage_Headphone"}, {"microphone", "ID_Microphone_Check"},
    {"system", "ID_Host_Report_System"},
};
constexpr Word ContradictionTexts[] = {
    {"yesWithoutPictures", "ID_Host_Flag_YesWithoutPictures"},
    {"yesToBlackPicture", "ID_Host_Flag_YesToBlackPicture"},
    {"yesToFrozenPicture", "ID_Host_Flag_YesToFrozenPicture"},
    {"noToGoodPicture", "ID_Host_Flag_NoToGoodPicture"},
    {"yesToWrongSound", "ID_Host_Flag_YesToWrongSound"},
    {"yesToMutedSpeaker", "ID_Host_Flag_YesToMutedSpeaker"},
    {"noToRightSound", "ID_Host_Flag_NoToRightSound"},
    {"yesToSilence", "ID_Host_Flag_YesToSilence"},
    {"noToGoodSound", "ID_Host_Flag_NoToGoodSound"},
};
constexpr Word Reasons[] = {
    {"stepNotOpened", "ID_Host_Reason_StepNotOpened"},
    {"notRecorded", "ID_Host_Reason_NotRecorded"},
    {"scripted", "ID_Host_Reason_Scripted"},
    {"absent", "ID_Host_Reason_Absent"},
    {"off", "ID_Host_Reason_Off"},
    {"silent", "ID_Host_Reason_Silent"},
    {"denied", "ID_Host_Reason_Denied"},
    {"busy", "ID_Host_Reason_Busy"},
    {"hung", "ID_Host_Reason_Hung"},
    {"failed", "ID_Host_Reason_Failed"},
    {"noAnswer", "ID_Host_Reason_NoAnswer"},
};
constexpr Word Changed[] = {
    {"verdict", "ID_Host_Report_Result"},
    {"device", "ID_Host_Report_Device"},
    {"grade", "ID_Host_Grade"},
    {"delayMs", "ID_Host_Figure_Delay"},
    {"operatingSystem", "ID_NetworkPage_OS"},
    {"server", "ID_NewLogin_Server"},
};
// Figures of the grade that aren't figures of the network check.
constexpr Word GradeFigures[] = {
    {"oneWayDelayMs", "ID_Host_Figure_OneWayDelay"},
};

template <std::size_t Size>
const char* idOf(const Word (&words)[Size], const QString& word)
{
    const auto* found = std::find_if(std::begin(words), std::end(words), [&word](const Word& each) {
        return word == QLatin1String(each.word);
    });
    return found == std::end(words) ? nullptr : found->id;
}

template <std::size_t Size>
QString textOf(const ReportTexts& texts, const Word (&words)[Size], const QString& word)
{
    const char* id = idOf(words, word);
    return id ? texts.caption(id) : word;
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

QString ReportTexts::outcome(const QString& word) const
{
    return textOf(*this, Outcomes, word);
}

QString ReportTexts::verdict(const QString& word) const
{
    return textOf(*this, Verdicts, word);
}

QString ReportTexts::answer(const QString& word) const
{
    return textOf(*this, Answers, word);
}

QString ReportTexts::grade(const QString& word) const
{
    return textOf(*this, Grades, word);
}

QString ReportTexts::checkName(const QString& key) const
{
    return textOf(*this, Checks, key);
}

QString ReportTexts::contradiction(const QString& word) const
{
    return textOf(*this, ContradictionTexts, word);
}

QString ReportTexts::reason(const QString& word) const
{
    return textOf(*this, Reasons, word);
}

QString ReportTexts::changed(const QString& what) const
{
    return textOf(*this, Changed, what);
}

QString ReportTexts::changedValue(const QString& what, const QString& value) const
{
    if (what == QLatin1String("verdict")) {
        return verdict(value);
    }
    if (what == QLatin1String("grade")) {
        return grade(value);
    }
    if (what == QLatin1String("delayMs")) {
        return Figures::toText(value.toDouble(), Figures::Unit::Ms);
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

QString ReportTexts::captionOf(const QString& check, const QString& figure) const
{
    const Figures::Figure* known = Figures::find(check, figure);
    return known ? caption(known->captionId) : textOf(*this, GradeFigures, figure);
}

QString ReportTexts::valueOf(const QString& check, const Measurement& measurement) const
{
    if (measurement.status == Measurement::Status::NotMeasured) {
        return text("ID_Host_NotMeasured").arg(reason(measurement.reason));
    }
    if (measurement.status == Measurement::Status::Failed) {
        return text("ID_Host_MeasuringFailed").arg(reason(measurement.reason));
    }
    const Figures::Figure* known = Figures::find(check, measurement.key);
    switch (measurement.value.type()) {
    case QJsonValue::Bool:
        return yesOrNo(measurement.value.toBool());
    case QJsonValue::Double:
        return Figures::toText(measurement.value.toDouble(),
                               known ? known->unit : Figures::Unit::None);
    case QJsonValue::String:
        return measurement.key == QLatin1String("soundPlayed")
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

bool ReportTexts::isReason(const QString& word)
{
    return idOf(Reasons, word) != nullptr;
}
