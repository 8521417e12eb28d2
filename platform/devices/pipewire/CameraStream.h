// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pipewire/PictureFormat.h"

#include <QString>
#include <pipewire/pipewire.h>

namespace Platform {

// The pictures of one camera, from construction to destruction. On the camera thread only.
class CameraStream
{
public:
    // Called from inside the stream, which must not be destroyed there.
    class Listener
    {
    public:
        virtual void streamRuns() = 0;
        virtual void streamEnded(const QString& error) = 0; // no text: nobody said why
        virtual void rateAgreed(double picturesPerSecond) = 0;
        virtual void pictureReceived(const PictureFormat& format, const PictureView& view,
                                     const PictureOrientation& orientation) = 0;

    protected:
        ~Listener() = default;
    };

    CameraStream(pw_core* core, const QString& serial, const QSize& wishedSize, Listener& listener);
    ~CameraStream();
    CameraStream(const CameraStream&) = delete;
    CameraStream& operator=(const CameraStream&) = delete;

    quint32 nodeId() const { return pw_stream_get_node_id(m_stream); }

private:
    void connectTo(const QSize& wishedSize);
    void onStateChanged(pw_stream_state state, const char* error);
    void onFormatChanged(const spa_pod* format);
    void onProcess();
    void deliver(const spa_buffer& buffer);

    static const pw_stream_events Events;

    Listener& m_listener;
    pw_stream* m_stream = nullptr;
    spa_hook m_hook{};
    PictureFormat m_format;
    bool m_wasConnecting = false;
};

} // namespace Platform
