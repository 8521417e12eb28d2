// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/windowscameras/StagedMode.h"

#include <guiddef.h>

namespace TestSupport {

// Media Foundation's name for a format.
GUID subtypeOf(const QByteArray& format);
// The bytes of a frame, from the first in memory.
QByteArray frameOf(const StagedMode& mode, int number);

} // namespace TestSupport
