// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/ResultDocument.h"

#include "platform/backend/FileWriter.h"
#include "platform/backend/ResultKeys.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace Platform {

namespace {

const QLatin1String VersionKey("version");
const QLatin1String StateKey("state");
constexpr int DocumentVersion = 1;

QJsonObject toObject(const QMap<QString, QMap<QString, QJsonValue>>& section)
{
    QJsonObject result;
    for (auto check = section.begin(); check != section.end(); ++check) {
        QJsonObject values;
        for (auto value = check->begin(); value != check->end(); ++value) {
            values.insert(value.key(), value.value());
        }
        result.insert(check.key(), values);
    }
    return result;
}

} // namespace

ResultDocument::ResultDocument(const QString& path) : m_path(path)
{
}

void ResultDocument::setPath(const QString& path)
{
    m_path = path;
}

QJsonObject ResultDocument::toJson() const
{
    QJsonArray codes;
    for (const int code : m_codes) {
        codes.append(code);
    }
    QJsonObject document{{VersionKey, DocumentVersion},
                         {ResultKeys::Results, toObject(m_results)},
                         {ResultKeys::Measurements, toObject(judgedOrNewest())},
                         {ResultKeys::Codes, codes}};
    const Section laterOnes = later();
    if (!laterOnes.isEmpty()) {
        document.insert(ResultKeys::Later, toObject(laterOnes));
    }
    return document;
}

void ResultDocument::clear()
{
    m_results.clear();
    m_measurements.clear();
    m_judged.clear();
    m_codes.clear();
    m_deviceKeys.clear();
}

void ResultDocument::recordResult(const QString& key, const QJsonValue& value)
{
    const QString check = key.section(QLatin1Char('.'), 0, 0);
    m_results[check][key.section(QLatin1Char('.'), 1)] = value;
    m_judged[check] = m_measurements.value(check);
    write();
}

void ResultDocument::recordMeasurement(const QString& check, const QJsonObject& figures)
{
    const bool areOfDevice = figures.contains(StateKey);
    if (areOfDevice) {
        forgetOtherDevice(check, figures);
    }
    for (auto it = figures.begin(); it != figures.end(); ++it) {
        m_measurements[check][it.key()] = it.value();
        if (areOfDevice) {
            m_deviceKeys[check].insert(it.key());
        }
    }
    write();
}

void ResultDocument::recordCode(int code)
{
    m_codes.append(code);
    write();
}

ResultDocument::Section ResultDocument::judgedOrNewest() const
{
    Section result = m_measurements;
    for (auto check = m_judged.begin(); check != m_judged.end(); ++check) {
        result[check.key()] = *check;
        if (check->isEmpty()) {
            result.remove(check.key());
        }
    }
    return result;
}

ResultDocument::Section ResultDocument::later() const
{
    Section result;
    for (auto check = m_judged.begin(); check != m_judged.end(); ++check) {
        const QMap<QString, QJsonValue> newest = m_measurements.value(check.key());
        for (auto value = newest.begin(); value != newest.end(); ++value) {
            if (check->value(value.key(), QJsonValue::Undefined) != *value) {
                result[check.key()][value.key()] = *value;
            }
        }
    }
    return result;
}

void ResultDocument::forgetOtherDevice(const QString& check, const QJsonObject& figures)
{
    QMap<QString, QJsonValue>& values = m_measurements[check];
    if (values.value(ResultKeys::Device, QJsonValue::Undefined) ==
        figures.value(ResultKeys::Device)) {
        return;
    }
    const QSet<QString> keys = m_deviceKeys.take(check);
    for (const QString& key : keys) {
        values.remove(key);
    }
}

void ResultDocument::write() const
{
    if (!m_path.isEmpty()) {
        FileWriter::replace(m_path, QJsonDocument(toJson()).toJson());
    }
}

} // namespace Platform
