// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedCameras.h"

#include <utility>

namespace Platform {

ScriptedCameras::ScriptedCameras() = default;

ScriptedCameras::~ScriptedCameras() = default;

void ScriptedCameras::setFeed(const QString& id, const Feed& feed)
{
    m_feeds.insert(id, feed);
    if (id == currentId()) {
        Q_EMIT currentFeedChanged();
    }
}

void ScriptedCameras::setPictures(const QString& id, Pictures pictures)
{
    Feed changed = feed(id);
    changed.pictures = pictures;
    setFeed(id, changed);
}

void ScriptedCameras::setServerRunning(bool isRunning)
{
    m_isServerLost = !isRunning;
    if (isRunning) {
        for (const auto& [camera, state] : std::exchange(m_away, {})) {
            plug(camera, state);
        }
    } else {
        for (const DeviceInfo& camera : devices()) {
            m_away.emplace_back(camera, stateOf(camera.id));
            unplug(camera.id);
        }
    }
    Q_EMIT currentFeedChanged();
}

} // namespace Platform
