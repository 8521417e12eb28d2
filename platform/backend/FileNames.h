// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QString>

namespace Platform {

// Recognises paths that the system doesn't open as an ordinary file of that name.
namespace FileNames {

// Empty, or what is wrong with the path under the rules of this system.
CLASSROOMBACKEND_EXPORT QString problem(const QString& path);

// Under the rules of Windows: some names mean devices in every folder and with every extension, and
// some characters and endings are forbidden.
CLASSROOMBACKEND_EXPORT QString problemOnWindows(const QString& path);

} // namespace FileNames
} // namespace Platform
