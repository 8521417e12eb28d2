// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windowscameras/WindowsCameraSource.h"

namespace Platform {

// "\\\\?\\usb#vid_046d&pid_0825&mi_00#7&2b3c&0&0000#{65e8773d-...}\\global": the last part names
// the interface by which the camera was found.
QString WindowsCameraSource::placeOf(const QString& link)
{
    return link.left(link.lastIndexOf(QLatin1String("#{")));
}

} // namespace Platform
