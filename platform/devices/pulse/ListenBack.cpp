// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/ListenBack.h"

#include <algorithm>
#include <cmath>
#include <pulse/timeval.h>

namespace Platform {

namespace {

// The server asks for more as often as that, and takes no more delay itself.
constexpr unsigned RequestMs = 5;
// It begins with so much, and is never short of room.
constexpr unsigned StartMs = 7;
constexpr unsigned RoomMs = 200;
// How long a pause in the sound is waited for to catch up in.
constexpr double PatienceMs = 400.0;
constexpr float Silence = 0.003F; // -50 dBFS
constexpr double SilenceMs = 5.0; // shorter, it is but where a wave crosses zero
constexpr char StreamName[] = "Listening to oneself";

} // namespace

ListenBack::ListenBack(pa_mainloop_api* api, const QString& speakerId, unsigned rate)
    : m_speakerId(speakerId.toUtf8()),
      m_rate(rate),
      m_samplesPerMs(rate / 1000.0),
      m_guard(rate),
      m_context(pa_context_new(api, PulseClientName))
{
    pa_context_set_state_callback(
        m_context.get(),
        [](pa_context*, void* self) { static_cast<ListenBack*>(self)->contextStateChanged(); },
        this);
    // Where it fails, the state says so.
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
    m_stream.reset(pa_stream_new(m_context.get(), StreamName, &spec, nullptr));
    if (!m_stream) {
        pa_context_disconnect(m_context.get());
        return;
    }
    pa_stream_set_underflow_callback(
        m_stream.get(),
        [](pa_stream*, void* self) { static_cast<ListenBack*>(self)->noteUnderflow(); }, this);
    const auto bytes = [&spec](unsigned milliseconds) {
        return static_cast<std::uint32_t>(pa_usec_to_bytes(milliseconds * PA_USEC_PER_MSEC, &spec));
    };
    const pa_buffer_attr buffer = {static_cast<std::uint32_t>(-1), bytes(RoomMs), bytes(StartMs),
                                   bytes(RequestMs), static_cast<std::uint32_t>(-1)};
    const auto flags =
        static_cast<pa_stream_flags_t>(PA_STREAM_DONT_MOVE | PA_STREAM_EARLY_REQUESTS);
    pa_stream_connect_playback(m_stream.get(), m_speakerId.constData(), &buffer, flags, nullptr,
                               nullptr);
}

bool ListenBack::hasFailed() const
{
    return !PA_CONTEXT_IS_GOOD(pa_context_get_state(m_context.get())) ||
           (m_stream && !PA_STREAM_IS_GOOD(pa_stream_get_state(m_stream.get())));
}

void ListenBack::play(const float* samples, std::size_t count)
{
    if (!m_stream || pa_stream_get_state(m_stream.get()) != PA_STREAM_READY) {
        return;
    }
    if (m_hasStarted) {
        m_drift.observe(storeMs(), static_cast<double>(count) / m_samplesPerMs);
        m_resampler.setDeviation(m_drift.deviation());
        takeExcess();
    }
    m_kept.clear();
    for (std::size_t i = 0; i < count; ++i) {
        const float sample = m_guard.pass(samples[i]);
        if (!isSkipped(sample)) {
            m_kept.push_back(sample);
        }
    }
    m_output.clear();
    m_resampler.process(m_kept, m_output);
    if (!m_output.empty()) {
        pa_stream_write(m_stream.get(), m_output.data(), m_output.size() * sizeof(float), nullptr,
                        0, PA_SEEK_RELATIVE);
        m_hasStarted = true;
    }
}

void ListenBack::takeExcess()
{
    const auto excess = static_cast<std::size_t>(m_drift.takeExcessMs() * m_samplesPerMs);
    if (excess == 0) {
        return;
    }
    if (m_toSkip == 0) {
        m_patience = static_cast<std::size_t>(PatienceMs * m_samplesPerMs);
    }
    m_toSkip = excess; // what was measured before and isn't skipped yet is in it
}

// Nobody misses silence. Only where there is none is something left out that was to be heard.
bool ListenBack::isSkipped(float sample)
{
    m_quiet = std::abs(sample) > Silence ? 0 : m_quiet + 1;
    if (m_toSkip == 0) {
        return false;
    }
    if (m_patience > 0) {
        --m_patience;
        if (static_cast<double>(m_quiet) < SilenceMs * m_samplesPerMs) {
            return false;
        }
    }
    --m_toSkip;
    return true;
}

// The server asks for what is missing in its room.
double ListenBack::storeMs() const
{
    const pa_buffer_attr* buffer = pa_stream_get_buffer_attr(m_stream.get());
    const std::size_t missing =
        std::min<std::size_t>(pa_stream_writable_size(m_stream.get()), buffer->tlength);
    return static_cast<double>(buffer->tlength - missing) / sizeof(float) / m_samplesPerMs;
}

void ListenBack::noteUnderflow()
{
    m_drift.ranDry();
}

} // namespace Platform
