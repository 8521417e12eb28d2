// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QLoggingCategory>

// The engine's logging categories. All names start with "engine.", so that one rule filters them.
namespace Platform::Log {

// clang-format off
CLASSROOMBACKEND_EXPORT Q_DECLARE_LOGGING_CATEGORY(camera)
CLASSROOMBACKEND_EXPORT Q_DECLARE_LOGGING_CATEGORY(devices)
CLASSROOMBACKEND_EXPORT Q_DECLARE_LOGGING_CATEGORY(files)
CLASSROOMBACKEND_EXPORT Q_DECLARE_LOGGING_CATEGORY(network)
CLASSROOMBACKEND_EXPORT Q_DECLARE_LOGGING_CATEGORY(player)
CLASSROOMBACKEND_EXPORT Q_DECLARE_LOGGING_CATEGORY(reports)
CLASSROOMBACKEND_EXPORT Q_DECLARE_LOGGING_CATEGORY(settings)
// clang-format on

} // namespace Platform::Log
