// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/SocketWatch.h"
#include "platform/devices/pulse/PulseHandles.h"
#include "platform/devices/pulse/PulseLoop.h"
#include "platform/devices/pulse/PulseTimer.h"
#include "platform/devices/sound/SoundDevices.h"
#include "platform/devices/sound/VolumeOrder.h"

#include <QHash>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <pulse/introspect.h>
#include <pulse/volume.h>
#include <vector>

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
    using Publish = std::function<void(const SoundDevices&)>;

    explicit PulseConnection(Publish publish);
    ~PulseConnection(); // ends the thread and every stream

    void run(PulseLoop::Job job) { m_loop.post(std::move(job)); } // from any thread

    pa_context* context() const; // null while there is no connection
    pa_mainloop_api* api() const { return m_loop.api(); }
    void add(std::shared_ptr<Client> client);
    void remove(const std::shared_ptr<Client>& client);
    // Sets the volume and unmutes. Orders that come while one is being carried out replace each
    // other; only the last one is sent.
    void setVolume(SoundKind kind, const QString& id, int percent, quint64 order);

private:
    struct VolumeOrders
    {
        std::optional<VolumeOrder> underWay;
        std::optional<VolumeOrder> next;
        quint64 settled = 0;
    };

    // By device. A new volume keeps the balance of the channels.
    struct ChannelVolumes
    {
        QHash<QString, pa_cvolume> speakers;
        QHash<QString, pa_cvolume> microphones;

        QHash<QString, pa_cvolume>& of(SoundKind kind)
        {
            return kind == SoundKind::Speaker ? speakers : microphones;
        }
    };

    void connect();
    void disconnected();
    void socketStirred();
    void dropClients();
    void contextStateChanged();
    void refresh();
    void startRound();
    void await(pa_operation* operation);
    void replyArrived(bool isGood);
    void finishRound();
    void failRound();
    void endRound(unsigned pauseMs);
    unsigned nextBackOffMs();
    void watch();
    void takeServer(const char* defaultSink, const char* defaultSource);
    template <typename Info>
    void takeDevice(SoundKind kind, const Info& info);
    static void subscribed(pa_context*, int success, void* self);
    static void serverArrived(pa_context*, const pa_server_info* info, void* self);
    template <typename Info>
    static void deviceArrived(pa_context*, const Info*, int, void*);
    VolumeOrders& orders(SoundKind kind);
    void sendVolume(SoundKind kind);
    void volumeSettled(SoundKind kind);
    template <SoundKind Kind>
    static void volumeSet(pa_context*, int, void*);

    Publish m_publish;
    PulseLoop m_loop;
    PulseContextHandle m_context;
    PulseTimer m_retry; // connects again
    PulseTimer m_pause; // between two rounds
    PulseTimer m_deadline;
    PulseTimer m_watch; // asks the server now and then
    unsigned m_backOffMs;
    SocketWatch m_socket; // the server's
    pa_io_event* m_socketEvent = nullptr;
    std::vector<std::shared_ptr<Client>> m_clients;

    SoundDevices m_devices; // the last published ones
    QByteArray m_loggedServer;
    SoundDevices m_arriving;
    ChannelVolumes m_volumes; // of the last complete round
    ChannelVolumes m_arrivingVolumes;
    std::vector<PulseOperationHandle> m_round; // the queries under way
    std::size_t m_awaitedReplies = 0;
    bool m_isSubscribed = false;
    int m_silentTicks = 0;  // of the watch, since the server answered last
    bool m_isStale = false; // something changed since the current round began
    VolumeOrders m_speakerOrders;
    VolumeOrders m_microphoneOrders;
};

} // namespace Platform
