// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/JsonFields.h"

#include <algorithm>
#include <cmath>

namespace Platform {

namespace {

// The values of fields that were looked up; undefined ones have the fallback.

QString textOf(const QJsonValue& field, const JsonFields& fields, const char* key, int maxLength,
               const QString& fallback)
{
    if (field.isUndefined()) {
        return fallback;
    }
    const QString text = field.toString();
    if (!field.isString() || text.size() > maxLength) {
        fields.problem().set(fields.path(key),
                             maxLength == JsonFields::AnyLength
                                 ? qtTrId("ID_Engine_Json_Text")
                                 : qtTrId("ID_Engine_Json_ShortText").arg(maxLength));
        return fallback;
    }
    return text;
}

QString wordOf(const QJsonValue& field, const JsonFields& fields, const char* key,
               const QStringList& words, const QString& fallback)
{
    if (field.isUndefined()) {
        return fallback;
    }
    const QString word = field.toString();
    if (!words.contains(word)) {
        fields.problem().set(fields.path(key),
                             qtTrId("ID_Engine_Json_Word").arg(words.join(QStringLiteral(", "))));
        return fallback;
    }
    return word;
}

} // namespace

void JsonProblem::set(const QString& fieldPath, const QString& what)
{
    if (!isSet()) {
        path = fieldPath;
        text = what;
    }
}

QString JsonProblem::toString() const
{
    constexpr int MaxPathLength = 200; // a file may have a key as long as itself
    const QString shown =
        path.size() > MaxPathLength ? path.left(MaxPathLength - 1) + QChar(0x2026) : path;
    return shown.isEmpty() ? text : shown + QStringLiteral(": ") + text;
}

JsonFields::JsonFields(const QJsonObject& object, const QString& path, JsonProblem& problem)
    : m_object(object), m_path(path), m_problem(problem)
{
}

JsonFields::JsonFields(const QJsonObject& object, const QString& listPath, int index,
                       JsonProblem& problem)
    : m_object(object), m_path(listPath), m_index(index), m_problem(problem)
{
}

bool JsonFields::contains(const char* key) const
{
    return m_object.contains(QLatin1String(key));
}

// Put together only for a problem: most objects have none.
QString JsonFields::path() const
{
    return m_index == NoIndex ? m_path : QStringLiteral("%1[%2]").arg(m_path).arg(m_index);
}

QString JsonFields::path(const char* key) const
{
    const QString own = path();
    return own.isEmpty() ? QLatin1String(key) : own + QLatin1Char('.') + QLatin1String(key);
}

QString JsonFields::text(const char* key, int maxLength)
{
    return textOf(value(key, true), *this, key, maxLength, {});
}

QString JsonFields::text(const char* key, int maxLength, const QString& fallback)
{
    return textOf(value(key, false), *this, key, maxLength, fallback);
}

qint64 JsonFields::number(const char* key, qint64 min, qint64 max)
{
    require(key);
    return number(key, min, max, min);
}

qint64 JsonFields::number(const char* key, qint64 min, qint64 max, qint64 fallback)
{
    const QJsonValue field = value(key, false);
    if (field.isUndefined()) {
        return fallback;
    }
    const double number = field.toDouble();
    if (!field.isDouble() || std::floor(number) != number || number < double(min) ||
        number > double(max)) {
        m_problem.set(path(key), qtTrId("ID_Engine_Json_WholeNumber").arg(min).arg(max));
        return fallback;
    }
    return static_cast<qint64>(number);
}

double JsonFields::real(const char* key)
{
    const QJsonValue field = value(key, true);
    if (!field.isUndefined() && !field.isDouble()) {
        m_problem.set(path(key), qtTrId("ID_Engine_Json_Number"));
    }
    return field.toDouble();
}

bool JsonFields::flag(const char* key, bool fallback)
{
    const QJsonValue field = value(key, false);
    if (!field.isUndefined() && !field.isBool()) {
        m_problem.set(path(key), qtTrId("ID_Engine_Json_Flag"));
    }
    return field.toBool(fallback);
}

QJsonValue JsonFields::any(const char* key)
{
    const QJsonValue field = value(key, true);
    return field.isUndefined() ? QJsonValue() : field;
}

QString JsonFields::word(const char* key, const QStringList& words)
{
    return wordOf(value(key, true), *this, key, words, words.constFirst());
}

QString JsonFields::word(const char* key, const QStringList& words, const QString& fallback)
{
    return wordOf(value(key, false), *this, key, words, fallback);
}

JsonFields JsonFields::object(const char* key)
{
    const QJsonValue field = value(key, false);
    if (!field.isUndefined() && !field.isObject()) {
        m_problem.set(path(key), qtTrId("ID_Engine_Json_Object"));
    }
    return {field.toObject(), path(key), m_problem};
}

std::vector<JsonFields> JsonFields::objects(const char* key, int maxCount)
{
    std::vector<JsonFields> result;
    const QJsonArray elements = array(key, maxCount);
    const QString listPath = path(key);
    result.reserve(static_cast<std::size_t>(elements.size()));
    for (int i = 0; i < elements.size(); ++i) {
        const QJsonValue element = elements.at(i);
        result.push_back(JsonFields(element.toObject(), listPath, i, m_problem));
        if (!element.isObject()) {
            m_problem.set(result.back().path(), qtTrId("ID_Engine_Json_Object"));
        }
    }
    return result;
}

QStringList JsonFields::words(const char* key, const QStringList& words)
{
    QStringList result;
    const QJsonArray elements = array(key, AnyLength);
    for (const QJsonValue& element : elements) {
        if (words.contains(element.toString())) {
            result.append(element.toString());
        } else {
            m_problem.set(path(key),
                          qtTrId("ID_Engine_Json_WordList").arg(words.join(QStringLiteral(", "))));
        }
    }
    return result;
}

QJsonArray JsonFields::array(const char* key, int maxCount)
{
    const QJsonValue field = value(key, false);
    if (field.isUndefined()) {
        return {};
    }
    if (!field.isArray() || field.toArray().size() > maxCount) {
        m_problem.set(path(key), maxCount == AnyLength
                                     ? qtTrId("ID_Engine_Json_List")
                                     : qtTrId("ID_Engine_Json_ShortList").arg(maxCount));
        return {};
    }
    return field.toArray();
}

void JsonFields::require(const char* key)
{
    value(key, true);
}

void JsonFields::rejectOthers()
{
    for (auto field = m_object.constBegin(); field != m_object.constEnd(); ++field) {
        if (!isTaken(field.key())) {
            const QString own = path();
            m_problem.set(own.isEmpty() ? field.key() : own + QLatin1Char('.') + field.key(),
                          qtTrId("ID_Engine_Json_Unknown"));
        }
    }
}

bool JsonFields::isTaken(const QString& key) const
{
    return std::any_of(m_asked.begin(), m_asked.end(), [&key](const std::string& asked) {
        return key == QLatin1String(asked.data(), static_cast<int>(asked.size()));
    });
}

QJsonValue JsonFields::value(const char* key, bool isRequired)
{
    constexpr std::size_t UsualCount = 8;
    if (m_asked.empty()) {
        m_asked.reserve(UsualCount);
    }
    m_asked.emplace_back(key);
    const QJsonValue field = m_object.value(QLatin1String(key));
    if (isRequired && field.isUndefined()) {
        m_problem.set(path(key), qtTrId("ID_Engine_Json_Missing"));
    }
    return field;
}

} // namespace Platform
