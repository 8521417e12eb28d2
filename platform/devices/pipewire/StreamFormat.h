// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/FrameFormat.h"

#include <cstdint>
#include <vector>

namespace Platform {

// The raw formats that can be shown, by the server's numbers, the preferred ones first.
const std::vector<uint32_t>& readableFormats();

std::vector<uint32_t> formatsOf(PixelFormat pixelFormat); // the server's numbers for it

PixelFormat pixelFormatOf(uint32_t spaFormat); // None if it can't be shown

} // namespace Platform
