// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/PixelFormat.h"

#include <cstdint>
#include <vector>

namespace Platform {

// The server's numbers of the raw formats that can be shown, in the order of preference.
const std::vector<uint32_t>& readableFormats();

PixelLayout layoutOf(uint32_t spaFormat); // None where it can't be shown

} // namespace Platform
