// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windowscameras/WindowsCamera.h"

#include <QString>

namespace Platform {

// A camera in one of Windows' lists.
struct WindowsCameraSource
{
    QString link;  // names it for the system that lists it; in lower case, never empty
    QString place; // stays the same after replugging, whoever lists it
    QString name;  // for people; may be empty
    WindowsCameraMaker make;

    // The part of a symbolic link that all of Windows' interfaces to a camera have in common.
    static QString placeOf(const QString& link);
};

} // namespace Platform
