// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>

namespace Platform {

// The values of one run as one JSON document:
//   { "version": 1, "results": { "camera": { "userState": 1, … }, … },
//     "measurements": { "camera": { … }, … }, "later": { "network": { … } }, "codes": [ 3 ] }
// The measurements of a check are those that stood when its last result was recorded; without a
// result they are the newest. "later" has those that came or changed after that; often none did.
// GUI thread only. Where a path is set, every change replaces the file whole (FileWriter).
class CLASSROOMBACKEND_EXPORT ResultDocument
{
public:
    explicit ResultDocument(const QString& path = {});

    void setPath(const QString& path); // an empty path keeps the document in memory
    QString path() const { return m_path; }
    QJsonObject toJson() const;
    void clear(); // for the next run; the file stays until something is recorded

    // key is "check.value", such as "camera.userState".
    void recordResult(const QString& key, const QJsonValue& value);
    // Figures with a "state" are those of one device. They replace what was recorded so of another.
    void recordMeasurement(const QString& check, const QJsonObject& figures);
    void recordCode(int code);

private:
    // By check, by name. A QJsonObject would keep what was replaced in it.
    using Section = QMap<QString, QMap<QString, QJsonValue>>;

    Section judgedOrNewest() const;
    Section later() const;
    void forgetOtherDevice(const QString& check, const QJsonObject& figures);
    void write() const;

    QString m_path;
    Section m_results;
    Section m_measurements; // the newest
    Section m_judged;       // the measurements as they were at a check's last result
    QList<int> m_codes;
    QMap<QString, QSet<QString>> m_deviceKeys; // of the figures with a "state", by check
};

} // namespace Platform
