// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraOpening.h"
#include "platform/devices/camera/FrameConverter.h"
#include "platform/devices/camera/FrameSlot.h"
#include "platform/devices/pipewire/LoopTimer.h"
#include "platform/devices/pipewire/PipeWireConnection.h"
#include "platform/devices/pipewire/PipeWireStream.h"

#include <memory>

namespace Platform {

// The half of a PipeWireFeed that lives on the camera thread: its streams and what the server says
// about its camera. On the camera thread only.
class PipeWireCapture final : public PipeWireConnection::Observer,
                              private PipeWireStream::Listener,
                              private CameraOpening::System
{
public:
    PipeWireCapture(PipeWireConnection& connection, std::shared_ptr<FrameSlot> slot,
                    std::shared_ptr<CameraFeed::Listener> listener);
    virtual ~PipeWireCapture();
    PipeWireCapture(const PipeWireCapture&) = delete;
    PipeWireCapture& operator=(const PipeWireCapture&) = delete;

    void open(int generation, const QString& id) { m_opening.open(generation, id); }
    void close() { m_opening.close(); }
    void setOutputSize(const QSize& pixels);

    void camerasChanged() override;
    void serverMissing() override;
    void linkFailed(const QString& serial, quint32 readerId, const ServerError& error) override;
    void cameraFailed(const QString& serial, const ServerError& error) override;
    void connectionLost() override;

private:
    std::optional<CameraMode> bestMode(const QString& serial) const;
    void cameraEnded(const ServerError& error);
    void streamBlocked(const ServerError& error, DeviceState otherwise);
    void setReason(const ServerError& error);
    QString userOf(const QString& serial, DeviceState state) const;

    void streamRuns() override;
    void streamEnded(const ServerError& error) override;
    void rateAgreed(double framesPerSecond) override;
    void frameReceived(const FrameFormat& format, const FrameView& view,
                       const FrameOrientation& orientation) override;

    std::optional<QString> serialOf(const QString& id) const override;
    bool openStream(const QString& serial) override;
    void closeStream() override { m_stream.reset(); }
    void wakeAfter(std::chrono::milliseconds delay) override { m_timer.startOnce(delay); }
    void cancelWake() override { m_timer.stop(); }

    PipeWireConnection& m_connection;
    std::shared_ptr<FrameSlot> m_slot;
    std::shared_ptr<CameraFeed::Listener> m_listener;
    FrameConverter m_converter;
    QSize m_outputSize;
    QString m_serial;                 // of the camera that the stream is for
    std::optional<CameraMode> m_mode; // that the stream asked for
    bool m_didRun = false;            // the stream
    std::unique_ptr<PipeWireStream> m_stream;
    CameraOpening m_opening;
    LoopTimer m_timer;
};

} // namespace Platform
