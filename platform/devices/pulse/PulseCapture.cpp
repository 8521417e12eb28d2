// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseCapture.h"

#include "platform/devices/pulse/PulseLog.h"

#include <pulse/rtclock.h>
#include <pulse/timeval.h>
#include <utility>

namespace Platform {

namespace {

// Always two channels: servers mix a device down to one channel in different ways.
constexpr std::size_t Channels = CaptureMeter::Channels;
constexpr unsigned Rate = SoundCapture::Rate;
constexpr unsigned FragmentMs = 5;
constexpr std::size_t SmallestPiece = Channels * Rate * FragmentMs / 1000 / 2;
constexpr pa_usec_t WatchIntervalUs =
    std::chrono::microseconds(CaptureMeter::WatchInterval).count();
constexpr std::chrono::milliseconds ListenRetry(250);
constexpr char CaptureName[] = "Microphone check";

} // namespace

PulseCapture::PulseCapture(PulseConnection& connection) : m_connection(connection)
{
}

PulseCapture::~PulseCapture() = default;

void PulseCapture::open(const QString& microphoneId, std::shared_ptr<MicrophoneAnalysis> analysis,
                        Events events)
{
    close();
    pa_context* context = m_connection.context();
    if (!context) {
        events.failed(DeviceState::Failed);
        return;
    }
    m_events = std::move(events);
    m_microphoneId = microphoneId;
    m_meter.emplace(Rate, std::move(analysis), m_events.metered, CaptureMeter::Clock::now());
    const pa_sample_spec spec = {PA_SAMPLE_FLOAT32NE, Rate, Channels};
    m_stream.reset(pa_stream_new(context, CaptureName, &spec, nullptr));
    if (!m_stream) {
        fail();
        return;
    }
    pa_stream_set_state_callback(
        m_stream.get(),
        [](pa_stream*, void* self) { static_cast<PulseCapture*>(self)->streamStateChanged(); },
        this);
    pa_stream_set_read_callback(
        m_stream.get(),
        [](pa_stream*, std::size_t, void* self) { static_cast<PulseCapture*>(self)->readStream(); },
        this);
    pa_buffer_attr buffer = {};
    buffer.maxlength = static_cast<std::uint32_t>(-1);
    buffer.fragsize =
        static_cast<std::uint32_t>(pa_usec_to_bytes(FragmentMs * PA_USEC_PER_MSEC, &spec));
    const auto flags =
        static_cast<pa_stream_flags_t>(PA_STREAM_DONT_MOVE | PA_STREAM_ADJUST_LATENCY);
    if (pa_stream_connect_record(m_stream.get(), m_microphoneId.toUtf8().constData(), &buffer,
                                 flags) < 0) {
        fail();
        return;
    }
    m_watch = pa_context_rttime_new(
        context, pa_rtclock_now() + WatchIntervalUs,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* self) {
            static_cast<PulseCapture*>(self)->watch();
        },
        this);
}

void PulseCapture::listenOn(const QString& speakerId)
{
    if (m_speakerId != speakerId) {
        m_speakerId = speakerId;
        m_listenBack.reset();
    }
}

void PulseCapture::close()
{
    m_listenBack.reset();
    m_stream.reset();
    m_meter.reset();
    m_frames.clear();
    if (m_watch) {
        m_connection.api()->time_free(std::exchange(m_watch, nullptr));
    }
}

void PulseCapture::connectionLost()
{
    fail();
}

void PulseCapture::streamStateChanged()
{
    switch (pa_stream_get_state(m_stream.get())) {
    case PA_STREAM_READY:
        // PipeWire takes another device if the named one has just gone.
        if (QString::fromUtf8(pa_stream_get_device_name(m_stream.get())) != m_microphoneId) {
            fail();
        } else {
            PulseLog::formatOf(*m_stream, SoundKind::Microphone);
        }
        break;
    case PA_STREAM_FAILED:
    case PA_STREAM_TERMINATED:
        fail();
        break;
    case PA_STREAM_UNCONNECTED:
    case PA_STREAM_CREATING:
        break;
    }
}

// A server may deliver very small pieces. If the microphone hears the speaker, each piece that is
// played would make the next ones smaller still. So small pieces are collected first.
void PulseCapture::readStream()
{
    while (pa_stream_readable_size(m_stream.get()) > 0) {
        const void* data = nullptr;
        std::size_t size = 0;
        if (pa_stream_peek(m_stream.get(), &data, &size) < 0) {
            fail();
            return;
        }
        if (size == 0) {
            break;
        }
        const std::size_t count = size / sizeof(float);
        if (data) {
            const auto* samples = static_cast<const float*>(data);
            m_frames.insert(m_frames.end(), samples, samples + count);
        } else {
            // A hole in the recording counts as silence of the same length.
            m_frames.resize(m_frames.size() + count, 0.0F);
        }
        pa_stream_drop(m_stream.get());
    }
    if (m_frames.size() >= SmallestPiece) {
        take(m_frames.data(), m_frames.size() / Channels);
        m_frames.clear();
    }
}

void PulseCapture::take(const float* samples, std::size_t frames)
{
    const CaptureMeter::Clock::time_point now = CaptureMeter::Clock::now();
    CaptureMeter::mixToMono(samples, frames, m_mono);
    listenBack(now); // first, because its delay is heard
    m_meter->add(samples, m_mono, now);
    if (m_events.recorded) {
        m_events.recorded(m_mono, now);
    }
}

void PulseCapture::listenBack(CaptureMeter::Clock::time_point now)
{
    const bool isBroken =
        m_listenBack && m_listenBack->hasFailed() && now - m_listenBackStart > ListenRetry;
    if (isBroken) {
        m_listenBack.reset();
    }
    if (!m_listenBack && !m_speakerId.isEmpty()) {
        m_listenBack = std::make_unique<ListenBack>(m_connection.api(), m_speakerId, Rate);
        m_listenBackStart = now;
    }
    if (m_listenBack) {
        m_listenBack->play(m_mono.data(), m_mono.size());
    }
}

void PulseCapture::watch()
{
    m_meter->watch(CaptureMeter::Clock::now());
    pa_context_rttime_restart(m_connection.context(), m_watch, pa_rtclock_now() + WatchIntervalUs);
}

void PulseCapture::fail()
{
    if (m_meter) {
        close();
        m_events.failed(DeviceState::Failed);
    }
}

} // namespace Platform
