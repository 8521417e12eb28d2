// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraCapture.h"
#include "platform/devices/camera/CameraList.h"
#include "platform/devices/camera/CameraOpening.h"
#include "platform/devices/camera/FrameSlot.h"
#include "platform/devices/windowscameras/CameraSourceThread.h"
#include "platform/devices/windowscameras/DeviceChangeWindow.h"
#include "platform/devices/windowscameras/WindowsCameraStream.h"

#include <QTimer>
#include <map>
#include <optional>

namespace Platform {

// The cameras of Windows. On the camera thread only, which asks Windows nothing that may hang.
class WindowsCameraCapture final : public CameraCapture, private CameraOpening::System
{
public:
    // Windows tells of changes, but not of all that brings or takes a camera.
    static constexpr std::chrono::milliseconds LookPeriod{3000};

    WindowsCameraCapture(const MediaFoundationLoader& load, std::shared_ptr<FrameSlot> slot,
                         std::shared_ptr<CameraFeed::Listener> listener);
    ~WindowsCameraCapture() override;
    WindowsCameraCapture(const WindowsCameraCapture&) = delete;
    WindowsCameraCapture& operator=(const WindowsCameraCapture&) = delete;

    void open(int generation, const QString& id) override { m_opening.open(generation, id); }
    void close() override { m_opening.close(); }
    void setOutputSize(const QSize& pixels) override;

private:
    std::optional<QString> serialOf(const QString& id) const override;
    bool openStream(const QString& link) override;
    void closeStream() override;
    void wakeAfter(std::chrono::milliseconds delay) override { m_timer.start(delay); }
    void cancelWake() override { m_timer.stop(); }

    void takeList(const WindowsCameraSources::List& list);
    bool update(const std::vector<WindowsCameraSource>& cameras);

    std::shared_ptr<FrameSlot> m_slot;
    std::shared_ptr<CameraFeed::Listener> m_listener;
    std::optional<CameraServer> m_server;           // none as long as no list has come
    CameraList m_cameras;                           // a camera's serial is its link
    std::map<QString, WindowsCameraMaker> m_makers; // by link
    QSize m_outputSize;
    std::optional<Mailbox> m_streamMailbox; // nothing arrives from an earlier stream
    std::shared_ptr<WindowsCameraStream> m_stream;
    std::weak_ptr<WindowsCameraStream> m_lastStream;
    CameraOpening m_opening;
    QTimer m_timer;      // of the opening
    QTimer m_burstTimer; // runs after a message of Windows
    QTimer m_lookTimer;
    Mailbox m_mailbox;
    std::shared_ptr<CameraSourceThread> m_sources;
    DeviceChangeWindow m_changes;
};

// A test replaces the way to the functions.
FeedMaker windowsCameraFeedMaker(const MediaFoundationLoader& load = [] {
    return MediaFoundation::load();
});

} // namespace Platform
