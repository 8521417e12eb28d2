// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/SoundDevices.h"
#include "platform/devices/sound/VolumeOrder.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace Platform {

class EndpointList;

// The thread that asks Windows for endpoints and sets their volumes. After every change, it makes
// the list anew. It may hang in any of that; the others only leave orders, and never wait.
class EndpointThread final : public std::enable_shared_from_this<EndpointThread>
{
public:
    using Publish = std::function<void(const SoundDevices&)>; // from any thread

    explicit EndpointThread(Publish publish);
    ~EndpointThread();

    // On a thread with COM, until stop(). Whoever runs it owns it.
    void run();

    // From any thread.
    void lookAgain();
    // Orders that come while one is being carried out replace each other.
    void setVolume(SoundKind kind, const QString& id, int percent, quint64 order);
    // To be called once a second: looks again, in case that no notice came, and tells if the thread
    // hangs. Ticks are counted rather than time: the caller may have been late itself.
    void tick();
    void stop();
    bool waitForEnd(std::chrono::milliseconds limit);

private:
    struct VolumeOrders
    {
        std::optional<VolumeOrder> next; // guarded by m_mutex
        quint64 settled = 0;             // of the thread
    };

    bool awaitTurn(); // false at the end
    void takeTurn(EndpointList& endpoints);
    quint64 settleOrder(SoundKind kind, EndpointList& endpoints);
    VolumeOrders& orders(SoundKind kind)
    {
        return kind == SoundKind::Speaker ? m_speakerOrders : m_microphoneOrders;
    }

    const Publish m_publish;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isDue = true; // guarded by m_mutex, as are the next ones
    bool m_isStopped = false;
    bool m_isRunning = false;
    int m_unansweredTicks = 0;
    VolumeOrders m_speakerOrders;
    VolumeOrders m_microphoneOrders;
    SoundDevices m_devices; // of the thread: the last list that it published
};

} // namespace Platform
