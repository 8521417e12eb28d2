// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiListenBack.h"

#include "platform/backend/Log.h"
#include "platform/devices/wasapi/WasapiError.h"

#include <algorithm>
#include <utility>

namespace Platform {

namespace {

constexpr unsigned Channels = 2;
constexpr std::chrono::milliseconds Buffer(60);
// What the buffer holds at least when a packet comes. Packets come as irregularly as Windows
// empties the buffer, each by up to one period of 10 ms.
constexpr unsigned ReserveMs = 15;
// A speaker that runs empty before the first packet would get a delay that can't be measured: Wine
// fills up what it hands to its server. So it starts with silence for a period more.
constexpr std::chrono::milliseconds Silence(ReserveMs + 10);
constexpr std::chrono::milliseconds Retry(250);

} // namespace

WasapiListenBack::WasapiListenBack(const QString& speakerId, unsigned rate,
                                   std::shared_ptr<WakeEvent> wake)
    : m_order{WasapiStream::Direction::Playback, speakerId, rate, Channels, Buffer, Silence},
      m_opening(std::move(wake))
{
}

WasapiListenBack::~WasapiListenBack()
{
    if (m_stream) {
        WasapiStream::closeElsewhere(std::move(m_stream));
    }
}

void WasapiListenBack::play(const std::vector<float>& mono, Clock::time_point now)
{
    openIfDue(now);
    if (m_stream && !write(mono)) {
        WasapiStream::closeElsewhere(std::move(m_stream));
        m_openNext = now + Retry;
    }
}

void WasapiListenBack::openIfDue(Clock::time_point now)
{
    if (m_stream) {
        return;
    }
    if (!m_isOpening) {
        if (now >= m_openNext) {
            m_opening.start(m_order);
            m_isOpening = true;
        }
        return;
    }
    if (std::optional<WasapiOpening::Result> result = m_opening.take()) {
        m_isOpening = false;
        m_stream = std::move(result->stream);
        m_filter = std::make_unique<ListenBackFilter>(m_order.rate, ReserveMs);
        m_hasStarted = false;
        m_wasEmpty = false;
        if (!m_stream) {
            qCInfo(Log::devices) << "Listening to oneself doesn't start:"
                                 << WasapiError::toString(result->error);
            m_openNext = now + Retry;
        }
    }
}

// An empty buffer isn't filled up with silence: what it lacked comes with the next packet. It is
// noted once, since the filter measures again after each note.
bool WasapiListenBack::write(const std::vector<float>& mono)
{
    unsigned waiting = 0;
    if (FAILED(m_stream->padding(waiting))) {
        return false;
    }
    if (!m_hasStarted) {
        m_hasStarted = true;
        const unsigned reserve = ReserveMs * m_order.rate / 1000;
        return put(std::vector<float>(reserve - std::min(reserve, waiting))) &&
               put(m_filter->process(mono.data(), mono.size(), std::nullopt));
    }
    const bool isEmpty = waiting == 0;
    if (isEmpty && !m_wasEmpty) {
        m_filter->noteUnderflow();
    }
    m_wasEmpty = isEmpty;
    return put(m_filter->process(mono.data(), mono.size(), 1000.0 * waiting / m_order.rate));
}

// What doesn't fit in is dropped: the speaker is far behind then.
bool WasapiListenBack::put(const std::vector<float>& mono)
{
    unsigned waiting = 0;
    if (FAILED(m_stream->padding(waiting))) {
        return false;
    }
    const std::size_t fits = std::min<std::size_t>(mono.size(), m_stream->bufferFrames() - waiting);
    m_frames.clear();
    for (std::size_t i = 0; i < fits; ++i) {
        m_frames.insert(m_frames.end(), Channels, mono[i]);
    }
    return SUCCEEDED(m_stream->write(m_frames.data(), static_cast<unsigned>(fits)));
}

} // namespace Platform
