// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pulse/PulseHandles.h"
#include "platform/devices/sound/ListenBackFilter.h"

#include <QByteArray>
#include <QString>

namespace Platform {

// Plays the sound of the microphone on one speaker, with as little delay as the server allows.
// Sound thread only. If the speaker fails, it stays silent.
//
// It has its own connection, because PipeWire delays the recording of a client while other messages
// to the same client wait, and a playback stream gets a message in every cycle.
class ListenBack
{
public:
    ListenBack(pa_mainloop_api* api, const QString& speakerId, unsigned rate);

    void play(const float* samples, std::size_t count);
    bool hasFailed() const;

private:
    void contextStateChanged();
    void connectStream();
    void streamStateChanged();
    double fillMs() const;

    QByteArray m_speakerId;
    unsigned m_rate;
    ListenBackFilter m_filter;
    bool m_hasStarted = false;
    bool m_isElsewhere = false; // the server took another device
    PulseContextHandle m_context;
    PulseStreamHandle m_stream;
};

} // namespace Platform
