// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/PixelFormat.h"

#include <QString>
#include <pipewire/pipewire.h>

namespace Platform {

// The pictures of one camera, from construction to destruction. On the camera thread only.
// It has a connection to the server of its own, which ends with it: on a shared one the server's
// late answers would still be read, and their file descriptors, which nobody takes any more, would
// stay open.
class PipeWireStream
{
public:
    // Called from inside the stream, which must not be destroyed there.
    class Listener
    {
    public:
        virtual void streamRuns() = 0;
        virtual void streamEnded(const QString& error) = 0; // no text: nobody said why
        virtual void rateAgreed(double framesPerSecond) = 0;
        virtual void frameReceived(const PixelFormat& format, const FrameView& view,
                                   const FrameOrientation& orientation) = 0;

    protected:
        ~Listener() = default;
    };

    PipeWireStream(pw_context* context, const QString& serial, const QSize& wishedSize,
                   Listener& listener);
    ~PipeWireStream();
    PipeWireStream(const PipeWireStream&) = delete;
    PipeWireStream& operator=(const PipeWireStream&) = delete;

    quint32 nodeId() const;

private:
    void connectTo(const QSize& wishedSize);
    void onStateChanged(pw_stream_state state, const char* error);
    void onFormatChanged(const spa_pod* format);
    void onProcess();
    void deliver(const spa_buffer& buffer);

    static const pw_stream_events Events;

    Listener& m_listener;
    pw_core* m_core; // null where the server takes no more connections
    pw_stream* m_stream = nullptr;
    spa_hook m_hook{};
    PixelFormat m_format;
    bool m_wasConnecting = false;
};

} // namespace Platform
