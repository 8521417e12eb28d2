// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/ResultDocument.h"

#include "platform/backend/FileWriter.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace Platform {

namespace {

const QLatin1String VersionKey("version");
const QLatin1String ResultsKey("results");
const QLatin1String MeasurementsKey("measurements");
const QLatin1String CodesKey("codes");
const QLatin1String StateKey("state");
const QLatin1String DeviceKey("device");
constexpr int DocumentVersion = 1;

} // namespace

ResultDocument::ResultDocument(const QString& path) : m_path(path)
{
    clear();
}

void ResultDocument::setPath(const QString& path)
{
    m_path = path;
}

void ResultDocument::clear()
{
    m_document = QJsonObject{{VersionKey, DocumentVersion},
                             {ResultsKey, QJsonObject()},
                             {MeasurementsKey, QJsonObject()},
                             {CodesKey, QJsonArray()}};
    m_deviceKeys.clear();
}

void ResultDocument::recordResult(const QString& key, const QJsonValue& value)
{
    set(ResultsKey, key.section(QLatin1Char('.'), 0, 0), key.section(QLatin1Char('.'), 1), value);
    write();
}

void ResultDocument::recordMeasurement(const QString& check, const QJsonObject& figures)
{
    const bool areOfDevice = figures.contains(StateKey);
    if (areOfDevice) {
        forgetOtherDevice(check, figures);
    }
    for (auto it = figures.begin(); it != figures.end(); ++it) {
        set(MeasurementsKey, check, it.key(), it.value());
        if (areOfDevice) {
            m_deviceKeys[check].insert(it.key());
        }
    }
    write();
}

void ResultDocument::recordCode(int code)
{
    QJsonArray codes = m_document.value(CodesKey).toArray();
    codes.append(code);
    m_document.insert(CodesKey, codes);
    write();
}

void ResultDocument::set(const QString& section, const QString& check, const QString& name,
                         const QJsonValue& value)
{
    QJsonObject checks = m_document.value(section).toObject();
    QJsonObject values = checks.value(check).toObject();
    values.insert(name, value);
    checks.insert(check, values);
    m_document.insert(section, checks);
}

void ResultDocument::forgetOtherDevice(const QString& check, const QJsonObject& figures)
{
    QJsonObject checks = m_document.value(MeasurementsKey).toObject();
    QJsonObject values = checks.value(check).toObject();
    if (values.value(DeviceKey) == figures.value(DeviceKey)) {
        return;
    }
    const QSet<QString> keys = m_deviceKeys.take(check);
    for (const QString& key : keys) {
        values.remove(key);
    }
    checks.insert(check, values);
    m_document.insert(MeasurementsKey, checks);
}

void ResultDocument::write() const
{
    if (!m_path.isEmpty()) {
        FileWriter::replace(m_path, QJsonDocument(m_document).toJson());
    }
}

} // namespace Platform
