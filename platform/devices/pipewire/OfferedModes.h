// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

struct spa_pod;

namespace Platform {

class CameraModes;

namespace OfferedModes {

// Adds the modes that one format of a node stands for.
void read(const spa_pod* format, CameraModes& modes);

} // namespace OfferedModes
} // namespace Platform
