// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windowscameras/MediaFormat.h"
#include "platform/devices/windowscameras/SampleBox.h"

#include <functional>
#include <memory>

namespace Platform {

// A camera that is opened by one of Windows' systems. It leaves its samples in a box. Each call may
// hang, the destructor too. On one thread with COM.
class WindowsCamera
{
public:
    WindowsCamera() = default;
    virtual ~WindowsCamera() = default;
    WindowsCamera(const WindowsCamera&) = delete;
    WindowsCamera& operator=(const WindowsCamera&) = delete;

    virtual HRESULT open() = 0; // finds out what it offers
    virtual const CameraModes& modes() const = 0;
    virtual HRESULT start(const CameraMode& mode) = 0; // one that it offers
    // What the flags of a delivery say, and what they ask for.
    virtual HRESULT take(DWORD flags) = 0;
    // An error if it has ended; to be asked again and again, since not all comes by the box.
    virtual HRESULT check() = 0;
    virtual const MediaFormat& format() const = 0; // that it sends
};

using WindowsCameraMaker =
    std::function<std::unique_ptr<WindowsCamera>(std::shared_ptr<SampleBox>)>;

} // namespace Platform
