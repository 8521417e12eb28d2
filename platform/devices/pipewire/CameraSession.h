// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraFeed.h"
#include "platform/devices/camera/FrameConverter.h"
#include "platform/devices/camera/FrameSlot.h"
#include "platform/devices/pipewire/CameraStream.h"
#include "platform/devices/pipewire/LoopTimer.h"
#include "platform/devices/pipewire/PipeWireConnection.h"

#include <memory>
#include <optional>

namespace Platform {

// The camera thread's half of a PipeWireFeed: keeps the wished camera open while it is there,
// gives up what hangs, tries again. On the camera thread only.
class CameraSession final : public PipeWireConnection::Observer, private CameraStream::Listener
{
public:
    CameraSession(PipeWireConnection& connection, std::shared_ptr<FrameSlot> slot,
                  std::unique_ptr<CameraFeed::Listener> listener);
    ~CameraSession();
    CameraSession(const CameraSession&) = delete;
    CameraSession& operator=(const CameraSession&) = delete;

    void open(int generation, const QString& id); // now, or once it is there
    void close();
    void setOutputSize(const QSize& pixels) { m_outputSize = pixels; }

    void camerasChanged() override;
    void serverMissing() override;
    void linkFailed(const QString& serial, quint32 readerId, const QString& error) override;
    void cameraFailed(const QString& serial, const QString& error) override;
    void connectionLost() override;

    // What a server's or a driver's words mean; Ready: nothing that the list won't tell.
    static DeviceState stateOf(const QString& error);

private:
    void streamRuns() override;
    void streamEnded(const QString& error) override;
    void rateAgreed(double framesPerSecond) override;
    void frameReceived(const PixelFormat& format, const FrameView& view,
                       const FrameOrientation& orientation) override;

    void openStream();
    void dropStream();
    void onDeadline();
    void onRetry();
    void onWatch();
    void reportUnlessExplained(DeviceState state);
    void report(DeviceState state);

    PipeWireConnection& m_connection;
    std::shared_ptr<FrameSlot> m_slot;
    std::unique_ptr<CameraFeed::Listener> m_listener;
    FrameConverter m_converter;
    QSize m_outputSize;
    QString m_id; // empty while closed
    int m_generation = 0;
    DeviceState m_state = DeviceState::Ready;
    QString m_serial; // of the camera that the stream is for
    std::unique_ptr<CameraStream> m_stream;
    FrameSlot::Clock::time_point m_runsSince;
    LoopTimer m_deadlineTimer;
    LoopTimer m_retryTimer;
    LoopTimer m_watchTimer;
};

} // namespace Platform
