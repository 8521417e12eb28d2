// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/v4l2/V4l2Thread.h"

#include "platform/devices/v4l2/V4l2Capture.h"

namespace Platform {

V4l2Thread::V4l2Thread(const V4l2Parts& parts, std::shared_ptr<FrameSlot> slot,
                       std::unique_ptr<CameraFeed::Listener> listener,
                       std::shared_ptr<EndingThreads> ending)
    : m_parts(parts),
      m_slot(std::move(slot)),
      m_listener(std::move(listener)),
      m_ending(std::move(ending))
{
    setObjectName(QStringLiteral("v4l2 cameras"));
    m_receiver.moveToThread(this);
}

V4l2Thread::~V4l2Thread() = default;

void V4l2Thread::post(std::function<void(V4l2Capture&)> job)
{
    QMetaObject::invokeMethod(
        &m_receiver, [this, job = std::move(job)] { job(*m_capture); }, Qt::QueuedConnection);
}

void V4l2Thread::run()
{
    V4l2Capture capture(m_parts, std::move(m_slot), std::move(m_listener), std::move(m_ending));
    m_capture = &capture; // before exec(), which runs the jobs
    exec();
}

} // namespace Platform
