// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <memory>

namespace Platform {

class Engine;

// The engine of this process. The host (or a test) installs it before it creates the first façade
// object, and uninstalls it after it destroyed the last one. GUI thread only.
namespace EngineRegistry {

CLASSROOMBACKEND_EXPORT void install(std::unique_ptr<Engine> engine);
CLASSROOMBACKEND_EXPORT void uninstall();
CLASSROOMBACKEND_EXPORT Engine& engine(); // one must be installed
// Increases with every install(): shows whether a cached reference is stale.
CLASSROOMBACKEND_EXPORT int generation();

} // namespace EngineRegistry
} // namespace Platform
