// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"
#include "platform/backend/EnumWords.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace Platform {

// The first thing that is wrong with a document.
struct CLASSROOMBACKEND_EXPORT JsonProblem
{
    QString path; // of the field; empty for the document itself
    QString text; // empty while nothing is wrong

    bool isSet() const { return !text.isEmpty(); }
    void set(const QString& fieldPath, const QString& what);
    QString toString() const; // "path: text"
};

// Reads the fields of one JSON object strictly: a field that is missing, of the wrong type or out
// of its range is a problem. After a problem the reading goes on with fallbacks.
class CLASSROOMBACKEND_EXPORT JsonFields
{
public:
    static constexpr int AnyLength = // of a text or a list
        std::numeric_limits<int>::max();

    JsonFields(const QJsonObject& object, const QString& path, JsonProblem& problem);

    bool contains(const char* key) const;
    QString path(const char* key) const;
    JsonProblem& problem() const { return m_problem; }
    QJsonObject rest() const { return m_object; }

    // Without a fallback, a field is required.
    QString text(const char* key, int maxLength);
    QString text(const char* key, int maxLength, const QString& fallback);
    qint64 number(const char* key, qint64 min, qint64 max); // whole
    qint64 number(const char* key, qint64 min, qint64 max, qint64 fallback);
    double real(const char* key);
    bool flag(const char* key, bool fallback);
    QJsonValue any(const char* key);
    QString word(const char* key, const QStringList& words);
    QString word(const char* key, const QStringList& words, const QString& fallback);
    template <typename Enum>
    Enum word(const char* key)
    {
        return EnumWords::value<Enum>(word(key, EnumWords::all<Enum>())).value_or(Enum());
    }
    template <typename Enum>
    Enum word(const char* key, Enum fallback)
    {
        return EnumWords::value<Enum>(word(key, EnumWords::all<Enum>(), EnumWords::word(fallback)))
            .value_or(fallback);
    }

    // Not required unless require() says so; then they are empty.
    JsonFields object(const char* key);
    std::vector<JsonFields> objects(const char* key, int maxCount);
    QStringList words(const char* key, const QStringList& words);
    QJsonArray array(const char* key, int maxCount);

    void require(const char* key);
    void rejectOthers(); // last call: a field that nobody asked for is a problem

private:
    static constexpr int NoIndex = -1;

    JsonFields(const QJsonObject& object, const QString& listPath, int index, JsonProblem& problem);

    QString path() const;
    QJsonValue value(const char* key, bool isRequired); // undefined if there is none
    bool isTaken(const QString& key) const;

    QJsonObject m_object;
    QString m_path;
    int m_index = NoIndex; // in the list of this path
    JsonProblem& m_problem;
    std::vector<std::string> m_asked; // the names, which may be gone by rejectOthers()
};

} // namespace Platform
