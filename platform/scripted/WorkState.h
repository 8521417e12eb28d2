// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

namespace Platform {

// The part of a device's state that listeners hear of: may it be opened, and does it work?
struct WorkState
{
    bool isUsable = false;
    bool works = false;

    friend bool operator==(WorkState a, WorkState b)
    {
        return a.isUsable == b.isUsable && a.works == b.works;
    }
};

inline WorkState workStateOf(DeviceState state)
{
    return {isUsable(state), state == DeviceState::Working};
}

} // namespace Platform
