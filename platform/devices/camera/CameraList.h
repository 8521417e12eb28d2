// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"
#include "platform/devices/camera/CameraNode.h"

#include <QString>
#include <map>
#include <optional>

namespace Platform {

// The cameras among the server's video sources. It hides sources with another role than "Camera",
// nodes of a device that can't capture (metadata), and infrared or depth sensors (InfraredFilter).
class CameraList
{
public:
    static bool isCamera(const CameraNode& node);

    // Both return whether the list changed.
    bool add(quint32 globalId, const CameraNode& node);
    bool remove(quint32 globalId);
    bool clear();

    // An id is the place, or the name if there is no place: both survive replugging.
    DeviceList devices() const; // sorted by id, with distinct names
    bool contains(const QString& id) const { return serialOf(id).has_value(); }
    // False if the camera with this serial offers formats and none can be shown.
    bool isReadable(const QString& serial) const;
    CameraModes modesOf(const QString& serial) const;
    std::optional<QString> serialOf(const QString& id) const;
    QString preferredId() const; // empty if there is none

private:
    std::map<QString, const CameraNode*> byId() const;

    std::map<quint32, CameraNode> m_nodes;
};

} // namespace Platform
