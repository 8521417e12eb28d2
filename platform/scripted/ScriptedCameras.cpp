// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedCameras.h"

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

} // namespace Platform
