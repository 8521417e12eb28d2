// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/EndpointThread.h"

#include "platform/backend/Log.h"
#include "platform/devices/wasapi/EndpointList.h"
#include "platform/devices/wasapi/WasapiError.h"

#include <utility>

namespace Platform {

namespace {

// Between two lists, so that many changes at once don't keep us busy.
constexpr std::chrono::milliseconds Pause(20);
constexpr int SilentAfterTicks = 3;

} // namespace

EndpointThread::EndpointThread(Publish publish) : m_publish(std::move(publish))
{
}

EndpointThread::~EndpointThread() = default;

void EndpointThread::run()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_isRunning = true;
    }
    {
        EndpointList endpoints([self = shared_from_this()] { self->lookAgain(); });
        while (awaitTurn()) {
            takeTurn(endpoints);
        }
    }
    const std::scoped_lock lock(m_mutex);
    m_isRunning = false;
    m_changed.notify_all();
}

void EndpointThread::lookAgain()
{
    const std::scoped_lock lock(m_mutex);
    m_isDue = true;
    m_changed.notify_all();
}

void EndpointThread::setVolume(SoundKind kind, const QString& id, int percent, quint64 order)
{
    const std::scoped_lock lock(m_mutex);
    orders(kind).next = VolumeOrder{id, percent, order};
    m_isDue = true;
    m_changed.notify_all();
}

void EndpointThread::tick()
{
    const std::scoped_lock lock(m_mutex);
    m_isDue = true;
    m_changed.notify_all();
    if (++m_unansweredTicks == SilentAfterTicks) {
        SoundDevices nothing;
        nothing.server = SoundServerState::Silent;
        m_publish(nothing); // under the lock, so that no list of the thread comes before it
    }
}

void EndpointThread::stop()
{
    const std::scoped_lock lock(m_mutex);
    m_isStopped = true;
    m_changed.notify_all();
}

bool EndpointThread::waitForEnd(std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, limit, [this] { return !m_isRunning; });
}

bool EndpointThread::awaitTurn()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isDue || m_isStopped; });
    m_isDue = false;
    return !m_isStopped;
}

void EndpointThread::takeTurn(EndpointList& endpoints)
{
    SoundDevices devices;
    devices.speakers.settledOrder = settleOrder(SoundKind::Speaker, endpoints);
    devices.microphones.settledOrder = settleOrder(SoundKind::Microphone, endpoints);
    const HRESULT error = endpoints.read(devices);
    devices.isConnected = SUCCEEDED(error);
    devices.server = devices.isConnected ? SoundServerState::Running : SoundServerState::Lost;
    if (!devices.isConnected) {
        qCInfo(Log::devices, "Windows' audio endpoints can't be listed: %s",
               qUtf8Printable(WasapiError::toString(error)));
        devices.speakers.devices.clear();
        devices.microphones.devices.clear();
    }
    std::unique_lock lock(m_mutex);
    const bool wasSilent = std::exchange(m_unansweredTicks, 0) >= SilentAfterTicks;
    if (wasSilent || !(devices == m_devices)) {
        m_devices = devices;
        m_publish(devices);
    }
    m_changed.wait_for(lock, Pause, [this] { return m_isStopped; });
}

// Whether the order was carried out or refused shows in the list that follows.
quint64 EndpointThread::settleOrder(SoundKind kind, EndpointList& endpoints)
{
    std::optional<VolumeOrder> order;
    {
        const std::scoped_lock lock(m_mutex);
        order = std::exchange(orders(kind).next, std::nullopt);
    }
    if (order) {
        endpoints.setVolume(kind, order->id, order->percent);
        orders(kind).settled = order->number;
    }
    return orders(kind).settled;
}

} // namespace Platform
