// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windowscameras/MediaFormat.h"

// Must follow windows.h.
#include <mfapi.h>

namespace Platform {

namespace MediaFoundationFormat {

MediaFormat of(IMFMediaType& type);

} // namespace MediaFoundationFormat
} // namespace Platform
