// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/AcousticLoop.h"

namespace Platform {

// Here, so that every library agrees on the type.
AcousticLoop::~AcousticLoop() = default;
AcousticLoopMaker::~AcousticLoopMaker() = default;

} // namespace Platform
