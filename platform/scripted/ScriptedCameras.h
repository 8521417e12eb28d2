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
    };

    ScriptedCameras();
    ~ScriptedCameras() override;

    void setFeed(const QString& id, const Feed& feed); // kept while the camera is unplugged
    void setPictures(const QString& id, Pictures pictures);
    Feed feed(const QString& id) const { return m_feeds.value(id); }

Q_SIGNALS:
    void currentFeedChanged();

private:
    QMap<QString, Feed> m_feeds;
};

} // namespace Platform
