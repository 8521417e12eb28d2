// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulsePlayback.h"

#include "platform/devices/pulse/PulseLog.h"
#include "platform/devices/sound/SoundBuffer.h"

#include <algorithm>
#include <pulse/timeval.h>
#include <utility>
#include <vector>

namespace Platform {

namespace {

// BufferMs is long, so that the sound doesn't tear on a busy machine. RequestMs is short: playback
// starts with the first piece, and the device adds no more delay.
constexpr unsigned BufferMs = 400;
constexpr unsigned RequestMs = 10;
constexpr char PlaybackName[] = "Test sound";

} // namespace

PulsePlayback::PulsePlayback(PulseConnection& connection, std::shared_ptr<SoundBuffer> sound,
                             Finished finished)
    : m_connection(connection), m_sound(std::move(sound)), m_finished(std::move(finished))
{
}

PulsePlayback::~PulsePlayback() = default;

void PulsePlayback::playOn(const QString& speakerId)
{
    if (m_isOver || m_speakerId == speakerId) {
        return;
    }
    m_speakerId = speakerId;
    if (m_stream) {
        pa_usec_t played = 0;
        const SoundBuffer::Format format = m_sound->format();
        if (pa_stream_get_time(m_stream.get(), &played) == 0) {
            const std::size_t frames =
                static_cast<std::size_t>(played) * format.rate / PA_USEC_PER_SEC;
            m_start = std::min(m_written, m_start + frames * format.channels);
        }
        m_stream.reset();
        m_written = m_start;
        m_isDraining = false;
    }
    soundAdvanced();
}

void PulsePlayback::soundAdvanced()
{
    if (m_isOver) {
        return;
    }
    if (m_sound->hasEnded() && m_sound->size() == 0) {
        finish(false);
    } else if (m_stream) {
        feed();
    } else if (!m_speakerId.isEmpty() && m_sound->size() > 0) {
        openStream();
    }
}

void PulsePlayback::stop()
{
    m_isOver = true;
    m_stream.reset();
}

void PulsePlayback::connectionLost()
{
    finish(false);
    m_stream.reset();
}

void PulsePlayback::openStream()
{
    pa_context* context = m_connection.context();
    if (!context) {
        finish(false);
        return;
    }
    const SoundBuffer::Format format = m_sound->format();
    const pa_sample_spec spec = {PA_SAMPLE_FLOAT32NE, format.rate,
                                 static_cast<std::uint8_t>(format.channels)};
    m_stream.reset(pa_stream_new(context, PlaybackName, &spec, nullptr));
    if (!m_stream) {
        finish(false);
        return;
    }
    pa_stream_set_state_callback(
        m_stream.get(),
        [](pa_stream*, void* self) { static_cast<PulsePlayback*>(self)->streamStateChanged(); },
        this);
    pa_stream_set_write_callback(
        m_stream.get(),
        [](pa_stream*, std::size_t, void* self) { static_cast<PulsePlayback*>(self)->feed(); },
        this);
    const auto bytes = [&spec](unsigned milliseconds) {
        return static_cast<std::uint32_t>(pa_usec_to_bytes(milliseconds * PA_USEC_PER_MSEC, &spec));
    };
    const pa_buffer_attr buffer = {static_cast<std::uint32_t>(-1), bytes(BufferMs),
                                   bytes(RequestMs), bytes(RequestMs),
                                   static_cast<std::uint32_t>(-1)};
    // If the device goes away, the sound must not continue on another one.
    const auto flags =
        static_cast<pa_stream_flags_t>(PA_STREAM_DONT_MOVE | PA_STREAM_EARLY_REQUESTS |
                                       PA_STREAM_INTERPOLATE_TIMING | PA_STREAM_AUTO_TIMING_UPDATE);
    if (pa_stream_connect_playback(m_stream.get(), m_speakerId.toUtf8().constData(), &buffer, flags,
                                   nullptr, nullptr) < 0) {
        finish(false);
    }
}

void PulsePlayback::streamStateChanged()
{
    switch (pa_stream_get_state(m_stream.get())) {
    case PA_STREAM_READY:
        // PipeWire takes another device if the named one has just gone.
        if (QString::fromUtf8(pa_stream_get_device_name(m_stream.get())) != m_speakerId) {
            finish(false);
        } else {
            PulseLog::formatOf(*m_stream, SoundKind::Speaker);
        }
        break;
    case PA_STREAM_FAILED:
    case PA_STREAM_TERMINATED:
        finish(false);
        break;
    case PA_STREAM_UNCONNECTED:
    case PA_STREAM_CREATING:
        break;
    }
}

void PulsePlayback::feed()
{
    if (m_isOver || m_isDraining || pa_stream_get_state(m_stream.get()) != PA_STREAM_READY) {
        return;
    }
    const std::size_t frameSize = pa_frame_size(pa_stream_get_sample_spec(m_stream.get()));
    const bool hasEnded = m_sound->hasEnded(); // asked before reading: the end may come meanwhile
    std::size_t wanted = pa_stream_writable_size(m_stream.get());
    while (wanted != static_cast<std::size_t>(-1) && wanted >= frameSize) {
        void* memory = nullptr;
        std::size_t size = wanted;
        if (pa_stream_begin_write(m_stream.get(), &memory, &size) < 0 || !memory) {
            finish(false);
            return;
        }
        size -= size % frameSize;
        const std::size_t count =
            m_sound->read(m_written, static_cast<float*>(memory), size / sizeof(float));
        if (count == 0) {
            pa_stream_cancel_write(m_stream.get());
            break;
        }
        if (m_written == 0) {
            m_begin = std::chrono::steady_clock::now();
        }
        pa_stream_write(m_stream.get(), memory, count * sizeof(float), nullptr, 0,
                        PA_SEEK_RELATIVE);
        m_written += count;
        wanted -= count * sizeof(float);
    }
    if (hasEnded && m_written == m_sound->size()) {
        m_isDraining = true;
        const auto drained = [](pa_stream*, int success, void* self) {
            static_cast<PulsePlayback*>(self)->finish(success != 0);
        };
        if (!release(pa_stream_drain(m_stream.get(), drained, this))) {
            finish(false);
        }
    }
}

void PulsePlayback::finish(bool isGood)
{
    if (!std::exchange(m_isOver, true)) {
        m_finished(isGood ? std::nullopt : std::optional(DeviceState::Failed));
    }
}

} // namespace Platform
