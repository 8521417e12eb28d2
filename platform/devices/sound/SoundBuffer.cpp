// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundBuffer.h"

#include <algorithm>
#include <utility>

namespace Platform {

SoundBuffer::SoundBuffer(Advanced advanced) : m_advanced(std::move(advanced))
{
}

void SoundBuffer::begin(Format format)
{
    const std::scoped_lock lock(m_mutex);
    m_format = format;
}

void SoundBuffer::append(const float* samples, std::size_t count)
{
    const std::scoped_lock lock(m_mutex);
    m_samples.insert(m_samples.end(), samples, samples + count);
    if (m_advanced) {
        m_advanced(false);
    }
}

void SoundBuffer::end()
{
    const std::scoped_lock lock(m_mutex);
    m_hasEnded = true;
    if (m_advanced) {
        m_advanced(true);
    }
}

bool SoundBuffer::isCancelled() const
{
    const std::scoped_lock lock(m_mutex);
    return m_isCancelled;
}

void SoundBuffer::cancel()
{
    const std::scoped_lock lock(m_mutex);
    m_isCancelled = true;
    m_advanced = nullptr;
}

SoundBuffer::Format SoundBuffer::format() const
{
    const std::scoped_lock lock(m_mutex);
    return m_format;
}

bool SoundBuffer::hasEnded() const
{
    const std::scoped_lock lock(m_mutex);
    return m_hasEnded;
}

std::size_t SoundBuffer::size() const
{
    const std::scoped_lock lock(m_mutex);
    return m_samples.size();
}

int SoundBuffer::lengthMs() const
{
    const std::scoped_lock lock(m_mutex);
    const std::size_t perSecond = std::size_t{m_format.rate} * m_format.channels;
    return perSecond == 0 ? 0 : static_cast<int>(m_samples.size() * 1000 / perSecond);
}

std::size_t SoundBuffer::read(std::size_t from, float* samples, std::size_t count) const
{
    const std::scoped_lock lock(m_mutex);
    if (from >= m_samples.size()) {
        return 0;
    }
    const std::size_t available = std::min(count, m_samples.size() - from);
    std::copy_n(m_samples.begin() + static_cast<std::ptrdiff_t>(from), available, samples);
    return available;
}

} // namespace Platform
