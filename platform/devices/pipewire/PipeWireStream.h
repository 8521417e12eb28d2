// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraModes.h"
#include "platform/devices/pipewire/LoopTimer.h"
#include "platform/devices/pipewire/ServerError.h"

#include <QString>
#include <pipewire/pipewire.h>

namespace Platform {

// Receives the frames of one camera, from construction to destruction. On the camera thread only.
// It has its own connection to the server. On a shared one, answers that arrive after the end would
// still be read, and the file descriptors in them would stay open because nobody takes them.
class PipeWireStream
{
public:
    // Called from inside the stream, which must not be destroyed there.
    class Listener
    {
    public:
        virtual void streamRuns() = 0;
        virtual void streamEnded(const ServerError& error) = 0; // empty if nobody said why
        virtual void rateAgreed(double framesPerSecond) = 0;
        virtual void frameReceived(const FrameFormat& format, const FrameView& view,
                                   const FrameOrientation& orientation) = 0;

    protected:
        ~Listener() = default;
    };

    // Takes other modes, too: another program may have agreed on one.
    PipeWireStream(pw_context* context, const QString& serial,
                   const std::optional<CameraMode>& preferred, Listener& listener);
    ~PipeWireStream();
    PipeWireStream(const PipeWireStream&) = delete;
    PipeWireStream& operator=(const PipeWireStream&) = delete;

    quint32 nodeId() const;

private:
    void connectTo(const std::optional<CameraMode>& preferred);
    void onServerError(int result);
    void onStateChanged(pw_stream_state state, const char* error);
    void onFormatChanged(const spa_pod* format);
    void onProcess();
    void deliver(const spa_buffer& buffer);

    static const pw_stream_events Events;
    static const pw_core_events CoreEvents;

    Listener& m_listener;
    pw_core* m_core; // null if the server takes no more connections
    pw_stream* m_stream = nullptr;
    spa_hook m_hook{};
    spa_hook m_coreHook{};
    ServerError m_error;
    LoopTimer m_errorTimer;
    FrameFormat m_format;
    bool m_wasConnecting = false;
};

} // namespace Platform
