// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/CaptureThread.h"

namespace Platform {

CaptureThread::CaptureThread(CaptureMaker makeCapture, std::shared_ptr<FrameSlot> slot,
                             std::unique_ptr<CameraFeed::Listener> listener,
                             std::shared_ptr<EndingThreads> ending)
    : m_makeCapture(std::move(makeCapture)),
      m_slot(std::move(slot)),
      m_listener(std::move(listener)),
      m_ending(std::move(ending))
{
    m_receiver.moveToThread(this);
}

CaptureThread::~CaptureThread() = default;

void CaptureThread::post(std::function<void(CameraCapture&)> job)
{
    QMetaObject::invokeMethod(
        &m_receiver, [this, job = std::move(job)] { job(*m_capture); }, Qt::QueuedConnection);
}

void CaptureThread::run()
{
    const std::unique_ptr<CameraCapture> capture =
        m_makeCapture(std::move(m_slot), std::move(m_listener), std::move(m_ending));
    m_capture = capture.get(); // before exec(), which runs the jobs
    exec();
}

} // namespace Platform
