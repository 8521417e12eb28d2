// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiPlayback.h"

#include "platform/devices/sound/SoundBuffer.h"
#include "platform/devices/wasapi/WasapiPlaying.h"
#include "platform/devices/windows/DriverThread.h"

#include <utility>

namespace Platform {

WasapiPlayback::WasapiPlayback(std::shared_ptr<SoundBuffer> sound, const Finished& finished)
    : m_playing(std::make_shared<WasapiPlaying>(std::move(sound), finished))
{
    if (!DriverThread::run(DriverThread::Priority::RealTime,
                           [playing = m_playing] { playing->run(); })) {
        finished(DeviceState::Failed);
    }
}

WasapiPlayback::~WasapiPlayback()
{
    stop();
}

void WasapiPlayback::playOn(const QString& speakerId)
{
    m_playing->playOn(speakerId);
}

void WasapiPlayback::soundAdvanced()
{
    m_playing->soundAdvanced();
}

void WasapiPlayback::stop()
{
    m_playing->stop();
}

std::chrono::steady_clock::time_point WasapiPlayback::begin() const
{
    return m_playing->begin();
}

} // namespace Platform
