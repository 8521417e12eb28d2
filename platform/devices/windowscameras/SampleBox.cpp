// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windowscameras/SampleBox.h"

#include <utility>

namespace Platform {

void SampleBox::put(Delivery delivery)
{
    const std::scoped_lock lock(m_mutex);
    if (m_delivery) { // of which nothing may get lost but the older sample
        delivery.flags |= m_delivery->flags;
        delivery.error = FAILED(m_delivery->error) ? m_delivery->error : delivery.error;
    }
    m_delivery = std::move(delivery);
    m_changed.notify_all();
}

void SampleBox::stop()
{
    const std::scoped_lock lock(m_mutex);
    m_isStopped = true;
    m_changed.notify_all();
}

bool SampleBox::isStopped() const
{
    const std::scoped_lock lock(m_mutex);
    return m_isStopped;
}

std::optional<SampleBox::Delivery> SampleBox::await(std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, limit, [this] { return m_delivery || m_isStopped; });
    return m_isStopped ? std::nullopt : std::exchange(m_delivery, std::nullopt);
}

void SampleBox::noteFlushed()
{
    const std::scoped_lock lock(m_mutex);
    m_isFlushed = true;
    m_changed.notify_all();
}

bool SampleBox::awaitFlush(std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, limit, [this] { return m_isFlushed; });
}

void SampleBox::end()
{
    const std::scoped_lock lock(m_mutex);
    m_isEnded = true;
    m_changed.notify_all();
}

bool SampleBox::awaitEnd(std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, limit, [this] { return m_isEnded; });
}

} // namespace Platform
