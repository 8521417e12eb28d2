// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

namespace Platform {

// Receives what a run finds out. GUI thread only; no call waits for a disk or a server.
class ReportSink
{
public:
    virtual ~ReportSink() = default;

    // A value of the run, such as "camera.userState" = 1. The last one written wins. It was made of
    // what was measured of that check so far: a back end records before it tells its listener.
    virtual void recordResult(const QString& key, const QJsonValue& value) = 0;
    // What a back end measured of a check ("camera", "speaker", "microphone", "network").
    virtual void recordMeasurement(const QString& check, const QJsonObject& figures) = 0;
    // A report code that the device manager of this name posts.
    virtual void postCode(const QString& managerName, int code) = 0;
};

} // namespace Platform
