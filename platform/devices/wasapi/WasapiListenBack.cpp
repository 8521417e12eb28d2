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
// What the buffer holds before the first sound: the packets of the microphone come as irregularly
// as Windows empties the buffer, each by up to one period.
constexpr unsigned ReserveMs = 10;
constexpr std::chrono::milliseconds Retry(250);

} // namespace

WasapiListenBack::WasapiListenBack(const QString& speakerId, unsigned rate,
                                   std::shared_ptr<WakeEvent> wake)
    : m_order{WasapiStream::Direction::Playback, speakerId, rate, Channels, Buffer},
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
        m_filter = std::make_unique<ListenBackFilter>(m_order.rate);
        m_hasStarted = false;
        if (!m_stream) {
            qCInfo(Log::devices) << "Listening to oneself doesn't start:"
                                 << WasapiError::toString(result->error);
            m_openNext = now + Retry;
        }
    }
}

bool WasapiListenBack::write(const std::vector<float>& mono)
{
    unsigned waiting = 0;
    if (FAILED(m_stream->padding(waiting))) {
        return false;
    }
    const double fillMs = 1000.0 * waiting / m_order.rate;
    if (m_hasStarted && waiting == 0) {
        m_filter->noteUnderflow();
    }
    if (!m_hasStarted || waiting == 0) {
        if (!put(std::vector<float>(ReserveMs * m_order.rate / 1000))) {
            return false;
        }
        waiting += ReserveMs * m_order.rate / 1000;
    }
    const std::vector<float>& sound = m_filter->process(
        mono.data(), mono.size(), m_hasStarted ? std::optional(fillMs) : std::nullopt);
    m_hasStarted = true;
    return put(sound);
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
