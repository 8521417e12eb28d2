// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QObject>
#include <QString>
#include <algorithm>
#include <vector>

namespace Platform {

Q_NAMESPACE_EXPORT(CLASSROOMBACKEND_EXPORT)

// A device as a back end reports it. Both texts are foreign: any Unicode, any length.
struct DeviceInfo
{
    QString id;   // unique in its list; the same after replugging if the system allows it
    QString name; // for display, equal names already numbered

    friend bool operator==(const DeviceInfo& a, const DeviceInfo& b)
    {
        return a.id == b.id && a.name == b.name;
    }
};

using DeviceList = std::vector<DeviceInfo>;

// The device with this id, in a list of DeviceInfo or of a type derived from it; null if none has.
template <typename List>
auto findDevice(List& devices, const QString& id) -> decltype(devices.data())
{
    const auto it = std::find_if(devices.begin(), devices.end(),
                                 [&id](const DeviceInfo& device) { return device.id == id; });
    return it == devices.end() ? nullptr : &*it;
}

// The name of the device with this id; empty if the list has none.
CLASSROOMBACKEND_EXPORT QString nameIn(const DeviceList& devices, const QString& id);

// Why a chosen device works or doesn't.
enum class DeviceState {
    Absent,     // none is chosen, or the chosen one isn't plugged in
    Off,        // "no device" is chosen
    Denied,     // the system refuses to open it
    Failed,     // it was opened and broke
    Unreadable, // it sends nothing that can be shown
    Busy,       // another program holds it
    Hung,       // it didn't answer before the deadline
    Silent,     // open, and sends nothing, or nothing louder than its noise
    Ready,      // usable, not opened yet
    Working,    // it sends frames or sound
};
Q_ENUM_NS(DeviceState)

// Chosen, plugged in and allowed to be opened: all but the first five.
CLASSROOMBACKEND_EXPORT bool isUsable(DeviceState state);

// The word of a state in logs and reports, such as "working".
CLASSROOMBACKEND_EXPORT QString toString(DeviceState state);

// Control characters become blanks, and a name longer than 200 characters is cut with an ellipsis.
CLASSROOMBACKEND_EXPORT QString printableName(const QString& name);

// Makes names printable and equal ones distinct: the second "Camera" becomes "Camera (2)".
CLASSROOMBACKEND_EXPORT DeviceList withDistinctNames(DeviceList devices);

} // namespace Platform
