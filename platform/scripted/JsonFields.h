// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <vector>

namespace Platform {

// The first thing that is wrong with a document.
struct JsonProblem
{
    QString path; // of the field
    QString text; // empty while nothing is wrong

    bool isSet() const { return !text.isEmpty(); }
    void set(const QString& fieldPath, const QString& what);
};

// Reads the fields of one JSON object strictly: a field of the wrong type, out of its range or
// unknown is a problem. After a problem the reading goes on with the fallbacks.
class JsonFields
{
public:
    JsonFields(const QJsonObject& object, const QString& path, JsonProblem& problem);

    bool contains(const char* key) const;
    QString path(const char* key) const;
    JsonProblem& problem() const { return m_problem; }

    QString text(const char* key, int maxLength); // required
    QString text(const char* key, int maxLength, const QString& fallback);
    qint64 number(const char* key, qint64 min, qint64 max); // required, whole
    qint64 number(const char* key, qint64 min, qint64 max, qint64 fallback);
    bool flag(const char* key, bool fallback);
    int word(const char* key, const QStringList& words); // required; its index
    int word(const char* key, const QStringList& words, int fallback);
    JsonFields object(const char* key);
    std::vector<JsonFields> objects(const char* key, int maxCount);
    QJsonArray array(const char* key, int maxCount);
    QJsonObject rest() const { return m_object; }

    void take(const QString& key) { m_taken.insert(key); }
    void rejectOthers(); // the last call: what wasn't asked for isn't known

private:
    bool has(const char* key, bool isRequired);
    QJsonValue value(const char* key);

    QJsonObject m_object;
    QString m_path;
    JsonProblem& m_problem;
    QSet<QString> m_taken;
};

} // namespace Platform
