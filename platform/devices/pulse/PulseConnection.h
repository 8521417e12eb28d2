// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pulse/PulseDevices.h"
#include "platform/devices/pulse/PulseHandles.h"
#include "platform/devices/pulse/PulseLoop.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

struct pa_time_event;

namespace Platform {

// The connection to the sound server. It keeps the list of devices up to date, sets volumes,
// notices if the server doesn't answer, and reconnects when it comes back. The GUI thread creates
// and destroys it; run() is for any thread, all else for the sound thread.
class PulseConnection
{
public:
    // Owner of streams on this connection.
    class Client
    {
    public:
        virtual ~Client() = default;
        virtual void connectionLost() = 0; // the streams are dead; also called by the destructor
    };
    using Publish = std::function<void(const PulseDevices&)>;

    explicit PulseConnection(Publish publish);
    ~PulseConnection(); // ends the thread and every stream

    void run(PulseLoop::Job job) { m_loop.post(std::move(job)); } // from any thread

    pa_context* context() const; // null while there is no connection
    pa_mainloop_api* api() const { return m_loop.api(); }
    void add(std::shared_ptr<Client> client);
    void remove(const std::shared_ptr<Client>& client);
    // Sets the volume and unmutes. Orders that come while one is being carried out replace each
    // other; only the last one is sent.
    void setVolume(PulseKind kind, const QString& id, int percent, quint64 order);

private:
    struct VolumeOrder
    {
        QString id;
        int percent;
        quint64 number;
    };
    struct VolumeOrders
    {
        std::optional<VolumeOrder> underWay;
        std::optional<VolumeOrder> next;
        quint64 settled = 0;
    };

    void connect();
    void disconnected();
    void dropClients();
    void contextStateChanged();
    void refresh();
    void startRound();
    void replyArrived();
    void startWatch();
    void watch();
    void endPause();
    void takeServer(const char* defaultSink, const char* defaultSource);
    template <typename Info>
    void takeDevice(PulseKind kind, const Info& info);
    template <typename Info>
    static void deviceArrived(pa_context*, const Info*, int, void*);
    VolumeOrders& orders(PulseKind kind);
    void sendVolume(PulseKind kind);
    template <PulseKind Kind>
    static void volumeSet(pa_context*, int, void*);

    Publish m_publish;
    PulseLoop m_loop;
    PulseContextHandle m_context;
    pa_time_event* m_retry = nullptr;
    pa_time_event* m_pause = nullptr;
    pa_time_event* m_watch = nullptr;
    unsigned m_backOffMs;
    std::vector<std::shared_ptr<Client>> m_clients;

    PulseDevices m_devices; // the last published ones
    PulseDevices m_arriving;
    int m_awaitedReplies = 0;
    int m_silentTicks = 0;  // of the watch, since the server answered last
    bool m_isStale = false; // something changed since the current round began
    VolumeOrders m_speakerOrders;
    VolumeOrders m_microphoneOrders;
};

} // namespace Platform
