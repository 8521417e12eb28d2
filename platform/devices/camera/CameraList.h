// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

#include <QString>
#include <map>
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
    QString capabilities;            // device.capabilities, if the server tells them
    std::optional<quint32> deviceId; // the server's number for its device
    int priority = 0;                // the higher, the sooner it is preferred
    bool hasFormats = false;
    bool hasColor = false;   // one of the formats has
    bool isReadable = false; // one of the formats can be shown
};

// The cameras among the server's video sources. It hides sources with another role than "Camera",
// nodes of a device that can't capture (metadata), and infrared or depth sensors: they offer only
// gray formats, or their name says so.
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
    std::optional<QString> serialOf(const QString& id) const;
    QString preferredId() const; // empty if there is none

private:
    std::map<QString, const CameraNode*> byId() const;

    std::map<quint32, CameraNode> m_nodes;
};

} // namespace Platform
