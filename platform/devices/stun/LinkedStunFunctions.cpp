// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/stun/StunFunctions.h"

namespace Platform {

const StunFunctions* StunFunctions::get()
{
    return &classroomStunFunctions;
}

} // namespace Platform
