// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiPlaying.h"

#include "platform/backend/Log.h"
#include "platform/devices/sound/SoundBuffer.h"
#include "platform/devices/wasapi/WasapiError.h"

#include <algorithm>
#include <utility>

namespace Platform {

namespace {

// So long that the sound doesn't tear on a busy machine. It plays from the first sample in it.
constexpr std::chrono::milliseconds Buffer(200);
// How often it is looked after if no event comes.
constexpr DWORD WatchMs = 50;
// Windows takes whole periods from the buffer, so the last one is filled up with silence.
constexpr unsigned PeriodsPerSecond = 100;

} // namespace

WasapiPlaying::WasapiPlaying(std::shared_ptr<SoundBuffer> sound, SoundPlayback::Finished finished)
    : m_sound(std::move(sound)), m_finished(std::move(finished)), m_opening(m_wake)
{
}

void WasapiPlaying::playOn(const QString& speakerId)
{
    const std::scoped_lock lock(m_mutex);
    m_wantedSpeaker = speakerId;
    m_wake->set();
}

void WasapiPlaying::stop()
{
    const std::scoped_lock lock(m_mutex);
    m_isStopped = true;
    m_wake->set();
}

// Closing the stream may hang, so the end is told before.
void WasapiPlaying::run()
{
    while (takeOrders() && step()) {
        const HANDLE events[] = {m_wake->handle(), m_stream ? m_stream->event() : nullptr};
        WaitForMultipleObjects(m_stream ? 2 : 1, events, FALSE, WatchMs);
    }
    m_opening.abandon();
    m_stream.reset();
}

bool WasapiPlaying::takeOrders()
{
    const std::scoped_lock lock(m_mutex);
    if (!m_isStopped && m_speakerId != m_wantedSpeaker) {
        leaveSpeaker();
        m_speakerId = m_wantedSpeaker;
    }
    return !m_isStopped;
}

bool WasapiPlaying::step()
{
    if (m_sound->hasEnded() && m_sound->size() == 0) {
        return finish(DeviceState::Failed);
    }
    if (m_stream) {
        return feed();
    }
    if (m_isOpening) {
        return takeSpeaker();
    }
    if (!m_speakerId.isEmpty() && m_sound->size() > 0) {
        openSpeaker();
    }
    return true;
}

// The sound goes on at the place up to which it was heard.
void WasapiPlaying::leaveSpeaker()
{
    m_opening.abandon();
    m_isOpening = false;
    if (!m_stream) {
        return;
    }
    unsigned waiting = 0;
    if (SUCCEEDED(m_stream->padding(waiting))) {
        waiting += m_stream->latencyFrames();
        const std::size_t unheard =
            std::size_t{waiting - std::min(waiting, m_silence)} * m_channels;
        m_written -= std::min(m_written, unheard);
    }
    m_silence = 0;
    WasapiStream::closeElsewhere(std::move(m_stream));
}

void WasapiPlaying::openSpeaker()
{
    const SoundBuffer::Format format = m_sound->format();
    m_channels = format.channels;
    m_opening.start(
        {WasapiStream::Direction::Playback, m_speakerId, format.rate, format.channels, Buffer});
    m_isOpening = true;
}

bool WasapiPlaying::takeSpeaker()
{
    std::optional<WasapiOpening::Result> result = m_opening.take();
    if (!result) {
        return true;
    }
    m_isOpening = false;
    m_stream = std::move(result->stream);
    return m_stream ? feed() : finish(result->error);
}

bool WasapiPlaying::feed()
{
    const bool hasEnded = m_sound->hasEnded(); // asked before reading: the end may come meanwhile
    unsigned waiting = 0;
    HRESULT error = m_stream->padding(waiting);
    if (SUCCEEDED(error) && waiting < m_stream->bufferFrames()) {
        error = writeSound(m_stream->bufferFrames() - waiting);
    }
    if (FAILED(error)) {
        return finish(error);
    }
    if (!hasEnded || m_written < m_sound->size()) {
        return true;
    }
    const unsigned silence = m_stream->latencyFrames() + m_sound->format().rate / PeriodsPerSecond;
    if (m_silence == silence) {
        return waiting > 0 || finish(std::nullopt);
    }
    error = m_stream->padding(waiting);
    if (SUCCEEDED(error)) {
        error = writeSilence(std::min(m_stream->bufferFrames() - waiting, silence - m_silence));
    }
    return SUCCEEDED(error) || finish(error);
}

HRESULT WasapiPlaying::writeSound(unsigned free)
{
    m_piece.resize(std::size_t{free} * m_channels);
    const std::size_t count = m_sound->read(m_written, m_piece.data(), m_piece.size());
    if (count < m_channels) {
        return S_OK;
    }
    if (m_written == 0) {
        m_begin = std::chrono::steady_clock::now();
    }
    const auto frames = static_cast<unsigned>(count / m_channels);
    m_written += std::size_t{frames} * m_channels;
    return m_stream->write(m_piece.data(), frames);
}

HRESULT WasapiPlaying::writeSilence(unsigned frames)
{
    m_piece.assign(std::size_t{frames} * m_channels, 0.0F);
    m_silence += frames;
    return m_stream->write(m_piece.data(), frames);
}

bool WasapiPlaying::finish(HRESULT error)
{
    qCInfo(Log::player) << "The speaker's stream ends:" << WasapiError::toString(error);
    return finish(WasapiError::failureOf(error));
}

// Always false: the sound is over.
bool WasapiPlaying::finish(std::optional<DeviceState> failure)
{
    {
        const std::scoped_lock lock(m_mutex);
        if (m_isStopped) {
            return false;
        }
    }
    m_finished(failure);
    return false;
}

} // namespace Platform
