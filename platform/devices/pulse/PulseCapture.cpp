// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseCapture.h"

#include "platform/devices/sound/MicrophoneAnalysis.h"

#include <algorithm>
#include <numeric>
#include <pulse/rtclock.h>
#include <pulse/timeval.h>
#include <utility>

namespace Platform {

namespace {

// Two, whatever the device has: servers don't agree on what becomes of them in one.
constexpr std::size_t Channels = 2;
constexpr unsigned FragmentMs = 5;
constexpr std::size_t SmallestPiece = Channels * PulseCapture::Rate * FragmentMs / 1000 / 2;
// A level that rises is told at once, the others as often as an eye can follow.
constexpr pa_usec_t LevelIntervalUs = 19 * PA_USEC_PER_MSEC;
constexpr double NoticeableRise = 0.02;
constexpr pa_usec_t WatchIntervalUs = 50 * PA_USEC_PER_MSEC;
constexpr pa_usec_t ListenRetryUs = 250 * PA_USEC_PER_MSEC;
constexpr char StreamName[] = "Microphone check";

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
        events.failed();
        return;
    }
    m_events = std::move(events);
    m_microphoneId = microphoneId;
    m_analysis = std::move(analysis);
    resetMeters();
    m_lastSample = pa_rtclock_now();
    const pa_sample_spec spec = {PA_SAMPLE_FLOAT32NE, Rate, Channels};
    m_stream.reset(pa_stream_new(context, StreamName, &spec, nullptr));
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
    m_meters.clear();
    m_analysis.reset();
    m_frames.clear();
    if (m_watch) {
        m_connection.api()->time_free(std::exchange(m_watch, nullptr));
    }
    m_isHeard = false;
    m_delivers.reset();
    m_lastLevel = 0.0;
}

void PulseCapture::connectionLost()
{
    fail();
}

void PulseCapture::streamStateChanged()
{
    switch (pa_stream_get_state(m_stream.get())) {
    case PA_STREAM_READY:
        // One kind of server takes another device where the named one has just gone.
        if (QString::fromUtf8(pa_stream_get_device_name(m_stream.get())) != m_microphoneId) {
            fail();
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

// A server may cut the sound very small, and where the microphone hears the speaker, each piece
// that is played would cut it smaller still. So it is handed on in pieces worth the trouble.
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
            // A hole in the sound: time has passed, and nothing was heard.
            m_frames.resize(m_frames.size() + count, 0.0F);
        }
        pa_stream_drop(m_stream.get());
    }
    if (m_frames.size() >= SmallestPiece) {
        take(m_frames.data(), m_frames.size() / Channels);
        m_frames.clear();
    }
}

void PulseCapture::take(const float* frames, std::size_t count)
{
    m_lastSample = pa_rtclock_now();
    setDelivering(true);
    m_mono.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        m_mono[i] = std::accumulate(frames + i * Channels, frames + (i + 1) * Channels, 0.0F) /
                    static_cast<float>(Channels);
    }
    listenBack(m_mono.data(), count); // first, as its delay is heard
    measure(frames, count);
}

void PulseCapture::measure(const float* frames, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        std::optional<double> level;
        bool isSound = false;
        for (std::size_t channel = 0; channel < Channels; ++channel) {
            level = std::max(level, m_meters[channel].add(frames[i * Channels + channel]));
            isSound = isSound || m_meters[channel].isSound();
        }
        if (level) {
            publish(*level);
        }
        m_analysis->add(m_mono[i], isSound);
    }
    const bool isHeard = std::any_of(m_meters.begin(), m_meters.end(),
                                     [](const LevelMeter& meter) { return meter.hasHeardSound(); });
    if (isHeard && !std::exchange(m_isHeard, true)) {
        m_events.soundHeard();
    }
}

void PulseCapture::resetMeters()
{
    m_meters.assign(Channels, LevelMeter(Rate));
}

void PulseCapture::listenBack(const float* samples, std::size_t count)
{
    const bool isBroken = m_listenBack && m_listenBack->hasFailed() &&
                          m_lastSample - m_listenBackStart > ListenRetryUs;
    if (isBroken) {
        m_listenBack.reset();
    }
    if (!m_listenBack && !m_speakerId.isEmpty()) {
        m_listenBack = std::make_unique<ListenBack>(m_connection.api(), m_speakerId, Rate);
        m_listenBackStart = m_lastSample;
    }
    if (m_listenBack) {
        m_listenBack->play(samples, count);
    }
}

void PulseCapture::publish(double level)
{
    const pa_usec_t now = pa_rtclock_now();
    if (level > m_lastLevel + NoticeableRise || now - m_lastLevelTime >= LevelIntervalUs) {
        m_lastLevel = level;
        m_lastLevelTime = now;
        m_events.levelMeasured(level);
    }
}

// A device that goes away in silence, or a frozen server, is noticed by what doesn't come.
void PulseCapture::watch()
{
    if (pa_rtclock_now() - m_lastSample > StallMs * PA_USEC_PER_MSEC) {
        setDelivering(false);
    }
    pa_context_rttime_restart(m_connection.context(), m_watch, pa_rtclock_now() + WatchIntervalUs);
}

void PulseCapture::setDelivering(bool delivers)
{
    if (m_delivers != delivers) {
        m_delivers = delivers;
        m_events.deliveryChanged(delivers);
        if (!delivers) {
            m_lastLevel = 0.0;
            resetMeters();
            m_events.levelMeasured(0.0);
        }
    }
}

void PulseCapture::fail()
{
    if (!m_meters.empty()) {
        close();
        m_events.failed();
    }
}

} // namespace Platform
