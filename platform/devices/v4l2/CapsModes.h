// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraModes.h"

#include <gst/gst.h>

namespace Platform {

// The modes of a camera in the words of GStreamer.
namespace CapsModes {

PixelFormat pixelFormatOf(const char* format); // None if it can't be shown
CameraModes modesOf(const GstCaps* caps);
GstCaps* capsOf(const CameraMode& mode); // the caller's

} // namespace CapsModes
} // namespace Platform
