// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/scripted/ScriptedDevices.h"

#include <QMap>
#include <QSize>

namespace Platform {

// The scripted cameras and what each of them shows.
class CLASSROOMSCRIPTED_EXPORT ScriptedCameras : public ScriptedDevices
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedCameras)

public:
    enum class Pictures {
        Moving, // a test pattern with the camera's name
        Frozen, // the same frame again and again
        Black,
        None, // a stall: the camera runs and sends no frame
    };
    Q_ENUM(Pictures)

    struct Feed
    {
        Pictures pictures = Pictures::Moving;
        QSize size = QSize(1280, 720);
        int framesPerSecond = 30;
        int startMs = 0;      // until the first frame, in addition to the frame's own time
        QString program = {}; // that uses the camera while it is busy
    };

    ScriptedCameras();
    ~ScriptedCameras() override;

    void setFeed(const QString& id, const Feed& feed); // kept while the camera is unplugged
    void setPictures(const QString& id, Pictures pictures);
    Feed feed(const QString& id) const { return m_feeds.value(id); }

    // Without its server no camera is in the list.
    void setServerRunning(bool isRunning);
    bool isServerLost() const { return m_isServerLost; }

Q_SIGNALS:
    void currentFeedChanged();

private:
    QMap<QString, Feed> m_feeds;
    std::vector<std::pair<DeviceInfo, DeviceState>> m_away; // until the server is back
    bool m_isServerLost = false;
};

} // namespace Platform
