// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/v4l2/V4l2Feed.h"

#include "platform/backend/EndingThreads.h"
#include "platform/devices/v4l2/V4l2Capture.h"
#include "platform/devices/v4l2/V4l2Thread.h"

namespace Platform {

V4l2Feed::V4l2Feed(const V4l2Parts& parts, std::shared_ptr<FrameSlot> slot,
                   std::unique_ptr<Listener> listener, std::shared_ptr<EndingThreads> ending)
    : m_ending(std::move(ending)),
      m_thread(std::make_unique<V4l2Thread>(parts, std::move(slot), std::move(listener), m_ending))
{
    m_thread->start();
}

V4l2Feed::~V4l2Feed()
{
    m_thread->quit();
    m_ending->take(std::move(m_thread));
}

void V4l2Feed::open(int generation, const QString& id)
{
    m_thread->post([generation, id](V4l2Capture& capture) { capture.open(generation, id); });
}

void V4l2Feed::close()
{
    m_thread->post([](V4l2Capture& capture) { capture.close(); });
}

void V4l2Feed::setOutputSize(const QSize& pixels)
{
    m_thread->post([pixels](V4l2Capture& capture) { capture.setOutputSize(pixels); });
}

} // namespace Platform
