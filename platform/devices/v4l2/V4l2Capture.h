// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraCapture.h"
#include "platform/devices/camera/CameraList.h"
#include "platform/devices/camera/CameraOpening.h"
#include "platform/devices/camera/FrameSlot.h"
#include "platform/devices/v4l2/V4l2Stream.h"
#include "platform/devices/v4l2/VideoDevices.h"

#include <QTimer>
#include <map>
#include <optional>

namespace Platform {

// The kernel's cameras, by udev and V4L2. On the camera thread only.
class V4l2Capture final : public CameraCapture,
                          private VideoDevices::Listener,
                          private V4l2Stream::Listener,
                          private CameraOpening::System
{
public:
    V4l2Capture(const V4l2Parts& parts, std::shared_ptr<FrameSlot> slot,
                std::shared_ptr<CameraFeed::Listener> listener,
                std::shared_ptr<EndingThreads> ending);
    ~V4l2Capture() override;
    V4l2Capture(const V4l2Capture&) = delete;
    V4l2Capture& operator=(const V4l2Capture&) = delete;

    void open(int generation, const QString& id) override { m_opening.open(generation, id); }
    void close() override { m_opening.close(); }
    void setOutputSize(const QSize& pixels) override;

private:
    void deviceFound(const VideoDevices::Properties& properties) override;
    void deviceGone(const QString& path) override;

    void streamOpens() override;
    void streamRuns() override;
    void firstFrameArrived() override;
    void framesUnreadable(const QString& problem) override;
    void streamEnded(DeviceState state, const QString& error, const QString& program) override;

    std::optional<QString> serialOf(const QString& id) const override;
    bool openStream(const QString& path) override;
    void closeStream() override;
    void wakeAfter(std::chrono::milliseconds delay) override { m_timer.start(delay); }
    void cancelWake() override { m_timer.stop(); }

    void announce();

    const V4l2Parts m_parts;
    std::shared_ptr<FrameSlot> m_slot;
    std::shared_ptr<CameraFeed::Listener> m_listener;
    std::shared_ptr<EndingThreads> m_ending;
    CameraList m_cameras;                 // a camera's serial is the path of its device file
    std::map<QString, quint32> m_numbers; // of the device files in the list
    quint32 m_lastNumber = 0;
    QSize m_outputSize;
    std::optional<Mailbox> m_mailbox; // of the stream: nothing arrives from an earlier one
    std::unique_ptr<V4l2Stream> m_stream;
    CameraOpening m_opening;
    QTimer m_timer; // of the opening
    QTimer m_announceTimer;
    std::unique_ptr<VideoDevices> m_devices;
};

} // namespace Platform
