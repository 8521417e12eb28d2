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
// The measurements of a check are those at the time of its last result, or the newest if it has no
// result. "later" has those that came or changed after that; it is often missing. GUI thread only.
// If a path is set, every change rewrites the file (FileWriter).
class CLASSROOMBACKEND_EXPORT ResultDocument
{
public:
    explicit ResultDocument(const QString& path = {});

    void setPath(const QString& path); // an empty path keeps the document in memory
    QString path() const { return m_path; }
    QJsonObject toJson() const;
    void clear(); // for the next run; the file keeps its content until the next value

    // key is "check.value", such as "camera.userState".
    void recordResult(const QString& key, const QJsonValue& value);
    // Figures with a "state" belong to one device. They replace the figures of another device.
    void recordMeasurement(const QString& check, const QJsonObject& figures);
    void recordCode(int code);

private:
    // By check, then by name. A QJsonObject would keep the memory of replaced values.
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
    QMap<QString, QSet<QString>> m_deviceKeys; // keys of figures with a "state", by check
};

} // namespace Platform
