// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraFeed.h"

#include <functional>
#include <memory>

typedef struct _GstElement GstElement;

namespace Platform {

class VideoDevices;

// The lowest parts, which a test replaces.
struct V4l2Parts
{
    std::function<std::unique_ptr<VideoDevices>()> makeDevices; // on the camera thread
    // A GStreamer element that delivers the frames of the device; null if there is none. Called on
    // the stream's thread, which it may block.
    std::function<GstElement*(const QString& path)> makeSource;
};

V4l2Parts systemV4l2Parts(); // udev and v4l2src

FeedMaker v4l2FeedMaker(const V4l2Parts& parts = systemV4l2Parts());

} // namespace Platform
