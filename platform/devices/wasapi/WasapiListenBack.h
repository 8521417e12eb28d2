// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/ListenBackFilter.h"
#include "platform/devices/wasapi/WasapiOpening.h"

#include <QString>
#include <chrono>
#include <memory>
#include <vector>

namespace Platform {

// Plays the sound of the microphone on one speaker, with as little delay as the speaker's buffer
// allows. It lives on the thread that records. A speaker that breaks is opened anew, after a while.
class WasapiListenBack
{
public:
    using Clock = std::chrono::steady_clock;

    WasapiListenBack(const QString& speakerId, unsigned rate, std::shared_ptr<WakeEvent> wake);
    ~WasapiListenBack();
    WasapiListenBack(const WasapiListenBack&) = delete;
    WasapiListenBack& operator=(const WasapiListenBack&) = delete;

    QString speakerId() const { return m_order.endpointId; }
    void play(const std::vector<float>& mono, Clock::time_point now);

private:
    void openIfDue(Clock::time_point now);
    bool write(const std::vector<float>& mono);
    bool put(const std::vector<float>& mono);

    WasapiStream::Order m_order;
    WasapiOpening m_opening;
    std::unique_ptr<WasapiStream> m_stream;
    std::unique_ptr<ListenBackFilter> m_filter; // of this stream
    bool m_isOpening = false;
    bool m_hasStarted = false;
    bool m_wasEmpty = false;      // the buffer, when the last packet came
    Clock::time_point m_openNext; // not before
    std::vector<float> m_frames;
};

} // namespace Platform
