// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/wasapi/StagedAudio.h"

#include <QByteArray>
#include <QJsonArray>

namespace TestSupport {

// The devices of a PulseAudio server as endpoints of this process, which have the server's names as
// ids. Wine shows neither changes of devices and defaults nor volumes; so presence, defaults and
// volumes are staged, and the streams are Wine's. Windows makes nothing louder than 100 %.
class EndpointMirror
{
public:
    EndpointMirror(); // nothing is there yet

    // What `pactl --format=json` says to "list" and "info".
    void show(const QByteArray& list, const QByteArray& info);
    StagedAudio& endpoints() { return m_endpoints; }

private:
    // Returns the ids.
    QStringList show(Platform::SoundKind kind, const QJsonArray& devices);
    void showDefault(Platform::SoundKind kind, const QString& id);

    StagedAudio m_endpoints;
};

} // namespace TestSupport
