// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/JsonFields.h"

#include <cmath>

namespace Platform {

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

bool JsonFields::contains(const char* key) const
{
    return m_object.contains(QLatin1String(key));
}

QString JsonFields::path(const char* key) const
{
    return m_path.isEmpty() ? QLatin1String(key) : m_path + QLatin1Char('.') + QLatin1String(key);
}

QString JsonFields::text(const char* key, int maxLength)
{
    return has(key, true) ? text(key, maxLength, {}) : QString();
}

QString JsonFields::text(const char* key, int maxLength, const QString& fallback)
{
    if (!has(key, false)) {
        return fallback;
    }
    const QJsonValue field = value(key);
    if (!field.isString() || field.toString().size() > maxLength) {
        m_problem.set(path(key), maxLength == AnyLength
                                     ? qtTrId("ID_Engine_Json_Text")
                                     : qtTrId("ID_Engine_Json_ShortText").arg(maxLength));
        return fallback;
    }
    return field.toString();
}

qint64 JsonFields::number(const char* key, qint64 min, qint64 max)
{
    return has(key, true) ? number(key, min, max, min) : min;
}

qint64 JsonFields::number(const char* key, qint64 min, qint64 max, qint64 fallback)
{
    if (!has(key, false)) {
        return fallback;
    }
    const QJsonValue field = value(key);
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
    if (has(key, true) && !value(key).isDouble()) {
        m_problem.set(path(key), qtTrId("ID_Engine_Json_Number"));
    }
    return value(key).toDouble();
}

bool JsonFields::flag(const char* key, bool fallback)
{
    if (!has(key, false)) {
        return fallback;
    }
    const QJsonValue field = value(key);
    if (!field.isBool()) {
        m_problem.set(path(key), qtTrId("ID_Engine_Json_Flag"));
    }
    return field.toBool(fallback);
}

QJsonValue JsonFields::any(const char* key)
{
    return has(key, true) ? value(key) : QJsonValue();
}

QString JsonFields::word(const char* key, const QStringList& words)
{
    return has(key, true) ? word(key, words, words.constFirst()) : words.constFirst();
}

QString JsonFields::word(const char* key, const QStringList& words, const QString& fallback)
{
    if (!has(key, false)) {
        return fallback;
    }
    const QString word = value(key).toString();
    if (!words.contains(word)) {
        m_problem.set(path(key),
                      qtTrId("ID_Engine_Json_Word").arg(words.join(QStringLiteral(", "))));
        return fallback;
    }
    return word;
}

JsonFields JsonFields::object(const char* key)
{
    if (has(key, false) && !value(key).isObject()) {
        m_problem.set(path(key), qtTrId("ID_Engine_Json_Object"));
    }
    return {value(key).toObject(), path(key), m_problem};
}

std::vector<JsonFields> JsonFields::objects(const char* key, int maxCount)
{
    std::vector<JsonFields> result;
    const QJsonArray elements = array(key, maxCount);
    for (int i = 0; i < elements.size(); ++i) {
        const QString elementPath = QStringLiteral("%1[%2]").arg(path(key)).arg(i);
        if (!elements.at(i).isObject()) {
            m_problem.set(elementPath, qtTrId("ID_Engine_Json_Object"));
        }
        result.emplace_back(elements.at(i).toObject(), elementPath, m_problem);
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
    if (!has(key, false)) {
        return {};
    }
    const QJsonValue field = value(key);
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
    has(key, true);
}

void JsonFields::rejectOthers()
{
    const QStringList keys = m_object.keys();
    for (const QString& key : keys) {
        if (!m_taken.contains(key)) {
            m_problem.set(m_path.isEmpty() ? key : m_path + QLatin1Char('.') + key,
                          qtTrId("ID_Engine_Json_Unknown"));
        }
    }
}

bool JsonFields::has(const char* key, bool isRequired)
{
    take(QLatin1String(key));
    if (isRequired && !contains(key)) {
        m_problem.set(path(key), qtTrId("ID_Engine_Json_Missing"));
    }
    return contains(key);
}

QJsonValue JsonFields::value(const char* key)
{
    return m_object.value(QLatin1String(key));
}

} // namespace Platform
