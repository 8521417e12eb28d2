// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraList.h"
#include "platform/devices/camera/FrameSlot.h"
#include "platform/devices/v4l2/V4l2Stream.h"
#include "platform/devices/v4l2/VideoDevices.h"

#include <QTimer>
#include <optional>

namespace Platform {

// Keeps the list and keeps the wished camera open while it is there; tells what hangs, tries again
// what failed. On the camera thread only.
class V4l2Session final : private VideoDevices::Listener, private V4l2Stream::Listener
{
public:
    V4l2Session(const V4l2Parts& parts, std::shared_ptr<FrameSlot> slot,
                std::unique_ptr<CameraFeed::Listener> user, std::shared_ptr<EndingThreads> ending);
    ~V4l2Session();
    V4l2Session(const V4l2Session&) = delete;
    V4l2Session& operator=(const V4l2Session&) = delete;

    void open(int generation, const QString& id); // now, or once it is there
    void close();
    void setOutputSize(const QSize& pixels);

private:
    using Clock = FrameSlot::Clock;

    void deviceFound(const VideoDevices::Properties& properties) override;
    void deviceGone(const QString& path) override;
    void streamOpens() override;
    void streamRuns() override;
    void firstFrameArrived() override;
    void streamEnded(DeviceState state, const QString& error) override;

    void announce();
    void openStream();
    void dropStream();
    void onWatch();
    void report(DeviceState state);

    const V4l2Parts m_parts;
    std::shared_ptr<FrameSlot> m_slot;
    std::shared_ptr<CameraFeed::Listener> m_user;
    std::shared_ptr<EndingThreads> m_ending;
    CameraList m_cameras;
    std::map<QString, quint32> m_numbers; // of the device files in the list
    quint32 m_lastNumber = 0;
    QSize m_outputSize;
    QString m_id; // empty while closed
    int m_generation = 0;
    DeviceState m_state = DeviceState::Ready;
    QString m_path;                   // of the camera that the stream is for
    std::optional<Mailbox> m_mailbox; // of the stream: nothing comes from an earlier one
    std::unique_ptr<V4l2Stream> m_stream;
    std::optional<Clock::time_point> m_opensSince;
    std::optional<Clock::time_point> m_runsSince;
    QTimer m_watchTimer;
    QTimer m_retryTimer;
    QTimer m_announceTimer;
    std::unique_ptr<VideoDevices> m_devices;
};

} // namespace Platform
