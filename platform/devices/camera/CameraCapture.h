// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraFeed.h"

namespace Platform {

// The half of a ThreadedFeed that lives on the camera thread: the list of cameras and the stream.
// On the camera thread only, which it must not block.
class CameraCapture
{
public:
    virtual ~CameraCapture() = default;

    virtual void open(int generation, const QString& id) = 0; // now, or once it is there
    virtual void close() = 0;
    virtual void setOutputSize(const QSize& pixels) = 0;
};

// Called on the camera thread.
using CaptureMaker = std::function<std::unique_ptr<CameraCapture>(
    std::shared_ptr<FrameSlot>, std::shared_ptr<CameraFeed::Listener>,
    std::shared_ptr<EndingThreads>)>;

} // namespace Platform
