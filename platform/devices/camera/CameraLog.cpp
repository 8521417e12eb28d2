// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/CameraLog.h"

namespace Platform {

Q_LOGGING_CATEGORY(CameraLog, "envcheck.camera")

} // namespace Platform
