// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseCaptureHandle.h"

#include "platform/devices/pulse/PulseCapture.h"

#include <utility>

namespace Platform {

PulseCaptureHandle::PulseCaptureHandle(PulseConnection& connection)
    : m_connection(connection), m_capture(std::make_shared<PulseCapture>(connection))
{
    m_connection.run([&connection, capture = m_capture] { connection.add(capture); });
}

PulseCaptureHandle::~PulseCaptureHandle()
{
    m_connection.run([&connection = m_connection, capture = std::move(m_capture)] {
        capture->close();
        connection.remove(capture);
    });
}

void PulseCaptureHandle::open(const QString& microphoneId,
                              std::shared_ptr<MicrophoneAnalysis> analysis, Events events)
{
    m_connection.run(
        [capture = m_capture, microphoneId, analysis = std::move(analysis),
         events = std::move(events)] { capture->open(microphoneId, analysis, events); });
}

void PulseCaptureHandle::listenOn(const QString& speakerId)
{
    m_connection.run([capture = m_capture, speakerId] { capture->listenOn(speakerId); });
}

void PulseCaptureHandle::close(std::function<void()> closed)
{
    m_connection.run([capture = m_capture, closed = std::move(closed)] {
        capture->close();
        if (closed) {
            closed();
        }
    });
}

} // namespace Platform
