// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QString>

namespace Platform {

// Paths that a system opens as something else than the file they name.
namespace FileNames {

// Empty, or what is wrong with the path by this system's own rules.
CLASSROOMBACKEND_EXPORT QString problem(const QString& path);

// Windows' rules: in any folder and with any ending, some names are devices; some letters and ends
// no name has.
CLASSROOMBACKEND_EXPORT QString problemOnWindows(const QString& path);

} // namespace FileNames
} // namespace Platform
