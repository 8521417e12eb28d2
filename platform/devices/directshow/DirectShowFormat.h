// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/directshow/MediaType.h"
#include "platform/devices/windowscameras/MediaFormat.h"

namespace Platform {

namespace DirectShowFormat {

MediaFormat of(const AM_MEDIA_TYPE& type);
void setRate(MediaType& type, const FrameRate& rate); // if the type has one
// From the time between two frames, in units of 100 ns; unknown if that isn't positive.
FrameRate rateOf(LONGLONG interval);

} // namespace DirectShowFormat
} // namespace Platform
