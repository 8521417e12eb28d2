// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/Mailbox.h"
#include "platform/devices/camera/CameraFeed.h"
#include "platform/devices/camera/CameraModes.h"
#include "platform/devices/camera/FrameConverter.h"
#include "platform/devices/windowscameras/WindowsCamera.h"

#include <QSize>
#include <atomic>
#include <memory>

namespace Platform {

class CameraOpening;

// One opening of a camera, on a thread of its own: a driver may take any time to open and to close,
// and nobody waits for it.
class WindowsCameraStream
{
public:
    // A stream that is silent for so long is opened anew: Windows doesn't tell of each one's end.
    static constexpr std::chrono::milliseconds SilenceLimit{6000};

    struct Order
    {
        WindowsCameraMaker make;
        int generation = 0;
        std::shared_ptr<FrameSlot> slot;
        std::shared_ptr<CameraFeed::Listener> listener;
        Mailbox::Sender sender; // the opening is called through it
        CameraOpening* opening = nullptr;
    };

    // If there was a stream before, it gets some time to let go of the camera.
    WindowsCameraStream(Order order, std::shared_ptr<WindowsCameraStream> before);
    ~WindowsCameraStream();
    WindowsCameraStream(const WindowsCameraStream&) = delete;
    WindowsCameraStream& operator=(const WindowsCameraStream&) = delete;

    // On a thread with COM, until stop() or the end of the stream. Whoever runs it owns it.
    void run();

    // From any thread.
    void setOutputSize(const QSize& pixels) { m_outputSize = pixels; }
    void stop() { m_box->stop(); }

private:
    HRESULT play(WindowsCamera& camera);
    HRESULT start(WindowsCamera& camera);
    HRESULT take(WindowsCamera& camera, const SampleBox::Delivery& delivery);
    void deliver(const WindowsCamera& camera, CameraSample& sample);
    void deliver(const QImage& image, const WindowsCamera& camera);
    void fail(HRESULT error);
    CameraMode bestMode(const WindowsCamera& camera) const;
    template <typename Function>
    void tell(Function function);

    const Order m_order;
    std::shared_ptr<WindowsCameraStream> m_before;
    const std::shared_ptr<SampleBox> m_box = std::make_shared<SampleBox>();
    std::atomic<QSize> m_outputSize;
    CameraMode m_mode; // that the camera was asked for
    FrameConverter m_converter;
    bool m_hasFrame = false;
};

} // namespace Platform
