// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/ListenBack.h"

#include <algorithm>
#include <pulse/timeval.h>

namespace Platform {

namespace {

// How often the server asks for more sound. It adds no more delay than this.
constexpr unsigned RequestMs = 5;
// Playback starts at this fill level; the buffer never gets full.
constexpr unsigned StartMs = 7;
constexpr unsigned BufferMs = 200;
constexpr char ListeningName[] = "Listening to oneself";

} // namespace

ListenBack::ListenBack(pa_mainloop_api* api, const QString& speakerId, unsigned rate)
    : m_speakerId(speakerId.toUtf8()),
      m_rate(rate),
      m_filter(rate),
      m_context(pa_context_new(api, PulseClientName))
{
    if (!m_context) {
        return;
    }
    pa_context_set_state_callback(
        m_context.get(),
        [](pa_context*, void* self) { static_cast<ListenBack*>(self)->contextStateChanged(); },
        this);
    // No check of the result: hasFailed() asks the state.
    pa_context_connect(m_context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
}

void ListenBack::contextStateChanged()
{
    if (pa_context_get_state(m_context.get()) == PA_CONTEXT_READY) {
        connectStream();
    }
}

void ListenBack::connectStream()
{
    const pa_sample_spec spec = {PA_SAMPLE_FLOAT32NE, m_rate, 1};
    m_stream.reset(pa_stream_new(m_context.get(), ListeningName, &spec, nullptr));
    if (!m_stream) {
        pa_context_disconnect(m_context.get());
        return;
    }
    pa_stream_set_state_callback(
        m_stream.get(),
        [](pa_stream*, void* self) { static_cast<ListenBack*>(self)->streamStateChanged(); }, this);
    pa_stream_set_underflow_callback(
        m_stream.get(),
        [](pa_stream*, void* self) { static_cast<ListenBack*>(self)->m_filter.noteUnderflow(); },
        this);
    const auto bytes = [&spec](unsigned milliseconds) {
        return static_cast<std::uint32_t>(pa_usec_to_bytes(milliseconds * PA_USEC_PER_MSEC, &spec));
    };
    const pa_buffer_attr buffer = {static_cast<std::uint32_t>(-1), bytes(BufferMs), bytes(StartMs),
                                   bytes(RequestMs), static_cast<std::uint32_t>(-1)};
    const auto flags =
        static_cast<pa_stream_flags_t>(PA_STREAM_DONT_MOVE | PA_STREAM_EARLY_REQUESTS);
    pa_stream_connect_playback(m_stream.get(), m_speakerId.constData(), &buffer, flags, nullptr,
                               nullptr);
}

// PipeWire takes another device if the named one has just gone.
void ListenBack::streamStateChanged()
{
    m_isElsewhere = pa_stream_get_state(m_stream.get()) == PA_STREAM_READY &&
                    m_speakerId != pa_stream_get_device_name(m_stream.get());
}

bool ListenBack::hasFailed() const
{
    return m_isElsewhere || !m_context ||
           !PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context.get())) ||
           (m_stream && !PA_STREAM_IS_GOOD(pa_stream_get_state(m_stream.get())));
}

void ListenBack::play(const float* samples, std::size_t count)
{
    if (m_isElsewhere || !m_stream || pa_stream_get_state(m_stream.get()) != PA_STREAM_READY) {
        return;
    }
    const std::vector<float>& output =
        m_filter.process(samples, count, m_hasStarted ? std::optional(fillMs()) : std::nullopt);
    if (!output.empty()) {
        pa_stream_write(m_stream.get(), output.data(), output.size() * sizeof(float), nullptr, 0,
                        PA_SEEK_RELATIVE);
        m_hasStarted = true;
    }
}

// Fill level of the playback buffer: its length less what the server still requests.
double ListenBack::fillMs() const
{
    const pa_buffer_attr* buffer = pa_stream_get_buffer_attr(m_stream.get());
    const std::size_t requested =
        std::min<std::size_t>(pa_stream_writable_size(m_stream.get()), buffer->tlength);
    return 1000.0 * static_cast<double>(buffer->tlength - requested) / sizeof(float) / m_rate;
}

} // namespace Platform
