// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiCapture.h"

#include "platform/devices/wasapi/WasapiRecording.h"
#include "platform/devices/windows/DriverThread.h"

#include <utility>

namespace Platform {

WasapiCapture::WasapiCapture() = default;

WasapiCapture::~WasapiCapture()
{
    close();
}

void WasapiCapture::open(const QString& microphoneId, std::shared_ptr<MicrophoneAnalysis> analysis,
                         Events events)
{
    close();
    const std::function<void(DeviceState)> failed = events.failed;
    m_recording =
        std::make_shared<WasapiRecording>(microphoneId, std::move(analysis), std::move(events));
    m_recording->listenOn(m_speakerId);
    if (!DriverThread::run(DriverThread::Priority::RealTime,
                           [recording = m_recording] { recording->run(); })) {
        m_recording.reset();
        failed(DeviceState::Failed);
    }
}

void WasapiCapture::listenOn(const QString& speakerId)
{
    m_speakerId = speakerId;
    if (m_recording) {
        m_recording->listenOn(speakerId);
    }
}

void WasapiCapture::close(std::function<void()> closed)
{
    if (m_recording) {
        std::exchange(m_recording, nullptr)->stop(std::move(closed));
    } else if (closed) {
        closed();
    }
}

} // namespace Platform
