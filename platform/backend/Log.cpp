// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/Log.h"

namespace Platform::Log {

Q_LOGGING_CATEGORY(camera, "engine.camera")
Q_LOGGING_CATEGORY(devices, "engine.devices")
Q_LOGGING_CATEGORY(files, "engine.files")
// Without debug: an unreachable server would log a line every second.
Q_LOGGING_CATEGORY(network, "engine.network", QtInfoMsg)
Q_LOGGING_CATEGORY(player, "engine.player", QtInfoMsg)
Q_LOGGING_CATEGORY(reports, "engine.reports")
Q_LOGGING_CATEGORY(settings, "engine.settings")

} // namespace Platform::Log
