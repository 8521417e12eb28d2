// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraModes.h"

#include <QString>
#include <QtGlobal>
#include <optional>

namespace Platform {

// A video source as the server describes it.
struct CameraNode
{
    QString serial;                  // the server's number for this appearance of the node
    QString name;                    // node.name
    QString place;                   // the device's bus path, otherwise its serial number
    QString description;             // for people
    QString role;                    // media.role
    QString file;                    // of the device, if the server tells it
    QString capabilities;            // device.capabilities, if the server tells them
    std::optional<quint32> deviceId; // the server's number for its device
    int priority = 0;                // the higher, the sooner it is preferred
    bool hasFormats = false;
    bool hasColor = false;   // one of the formats has
    bool isReadable = false; // one of the formats can be shown
    CameraModes modes;       // empty if the system tells none before the camera is open
};

} // namespace Platform
