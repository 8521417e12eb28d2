// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiRecording.h"

#include "platform/backend/Log.h"
#include "platform/devices/wasapi/WasapiError.h"

#include <utility>

namespace Platform {

namespace {

constexpr std::size_t Channels = CaptureMeter::Channels;
// More than a busy machine lets wait; it adds no delay.
constexpr std::chrono::milliseconds Buffer(100);
constexpr DWORD WatchMs = CaptureMeter::WatchInterval.count();

} // namespace

WasapiRecording::WasapiRecording(QString microphoneId, std::shared_ptr<MicrophoneAnalysis> analysis,
                                 SoundCapture::Events events)
    : m_order{WasapiStream::Direction::Recording, std::move(microphoneId), SoundCapture::Rate,
              Channels, Buffer},
      m_analysis(std::move(analysis)),
      m_events(std::move(events)),
      m_opening(m_wake)
{
}

void WasapiRecording::listenOn(const QString& speakerId)
{
    const std::scoped_lock lock(m_mutex);
    m_wantedSpeaker = speakerId;
    m_wake->set();
}

void WasapiRecording::stop(std::function<void()> stopped)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_isStopped = true;
        m_wake->set();
        if (!m_isOver) {
            m_stopped = std::move(stopped);
            return;
        }
    }
    if (stopped) { // its thread is over, and so are the events
        stopped();
    }
}

// Closing the streams may hang, so the end is told before.
void WasapiRecording::run()
{
    work();
    std::function<void()> stopped;
    {
        const std::scoped_lock lock(m_mutex);
        m_isOver = true;
        stopped = std::exchange(m_stopped, nullptr);
    }
    if (stopped) {
        stopped();
    }
    m_opening.abandon();
    m_listenBack.reset();
    m_stream.reset();
}

void WasapiRecording::work()
{
    m_meter.emplace(m_order.rate, m_analysis, m_events.metered, CaptureMeter::Clock::now());
    m_opening.start(m_order);
    while (takeOrders() && !m_hasFailed) {
        const HANDLE events[] = {m_wake->handle(), m_stream ? m_stream->event() : nullptr};
        WaitForMultipleObjects(m_stream ? 2 : 1, events, FALSE, WatchMs);
        if (!takeOrders()) {
            return;
        }
        if (m_stream) {
            readMicrophone();
        } else {
            openMicrophone();
        }
        if (!m_hasFailed) {
            m_meter->watch(CaptureMeter::Clock::now());
        }
    }
}

bool WasapiRecording::takeOrders()
{
    const std::scoped_lock lock(m_mutex);
    if (m_isStopped) {
        return false;
    }
    if (m_listenBack && m_listenBack->speakerId() != m_wantedSpeaker) {
        m_listenBack.reset();
    }
    if (!m_listenBack && !m_wantedSpeaker.isEmpty()) {
        m_listenBack = std::make_unique<WasapiListenBack>(m_wantedSpeaker, m_order.rate, m_wake);
    }
    return true;
}

void WasapiRecording::openMicrophone()
{
    if (std::optional<WasapiOpening::Result> result = m_opening.take()) {
        m_stream = std::move(result->stream);
        if (!m_stream) {
            fail(result->error);
        }
    }
}

void WasapiRecording::readMicrophone()
{
    m_frames.clear();
    const HRESULT error = m_stream->read(m_frames);
    if (FAILED(error)) {
        fail(error);
    } else if (!m_frames.empty()) {
        take(CaptureMeter::Clock::now());
    }
}

void WasapiRecording::take(CaptureMeter::Clock::time_point now)
{
    CaptureMeter::mixToMono(m_frames.data(), m_frames.size() / Channels, m_mono);
    if (m_listenBack) { // first, because its delay is heard
        m_listenBack->play(m_mono, now);
    }
    m_meter->add(m_frames.data(), m_mono, now);
    if (m_events.recorded) {
        m_events.recorded(m_mono, now);
    }
}

void WasapiRecording::fail(HRESULT error)
{
    qCInfo(Log::devices) << "The microphone's stream ends:" << WasapiError::toString(error);
    m_hasFailed = true;
    m_events.failed(WasapiError::failureOf(error));
}

} // namespace Platform
