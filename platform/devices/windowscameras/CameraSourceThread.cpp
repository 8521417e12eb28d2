// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windowscameras/CameraSourceThread.h"

#include <utility>

namespace Platform {

CameraSourceThread::CameraSourceThread(MediaFoundationLoader load, Publish publish)
    : m_load(std::move(load)), m_publish(std::move(publish))
{
}

void CameraSourceThread::run()
{
    WindowsCameraSources sources(m_load);
    while (awaitTurn()) {
        m_publish(sources.look());
    }
}

void CameraSourceThread::lookAgain()
{
    const std::scoped_lock lock(m_mutex);
    m_isDue = true;
    m_changed.notify_all();
}

void CameraSourceThread::stop()
{
    const std::scoped_lock lock(m_mutex);
    m_isStopped = true;
    m_changed.notify_all();
}

bool CameraSourceThread::awaitTurn()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isDue || m_isStopped; });
    m_isDue = false;
    return !m_isStopped;
}

} // namespace Platform
