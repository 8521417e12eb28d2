// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/v4l2/V4l2Parts.h"

#include "platform/devices/camera/ThreadedFeed.h"
#include "platform/devices/v4l2/UdevDevices.h"
#include "platform/devices/v4l2/V4l2Capture.h"

#include <gst/gst.h>

namespace Platform {

V4l2Parts systemV4l2Parts()
{
    V4l2Parts result;
    result.makeDevices = [] { return std::make_unique<UdevDevices>(); };
    result.makeSource = [](const QString& path) {
        GstElement* const source = gst_element_factory_make("v4l2src", nullptr);
        if (source) {
            g_object_set(source, "device", path.toUtf8().constData(), nullptr);
        }
        return source;
    };
    return result;
}

FeedMaker v4l2FeedMaker(const V4l2Parts& parts)
{
    const auto makeCapture = [parts](const auto& slot, const auto& listener, const auto& ending) {
        return std::make_unique<V4l2Capture>(parts, slot, listener, ending);
    };
    return threadedFeedMaker(QStringLiteral("v4l2 cameras"), makeCapture);
}

} // namespace Platform
