// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace Platform {

Q_DECLARE_LOGGING_CATEGORY(CameraLog)

} // namespace Platform
