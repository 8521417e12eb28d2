// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/SocketWatch.h"
#include "platform/devices/camera/CameraFeed.h"
#include "platform/devices/camera/CameraList.h"
#include "platform/devices/pipewire/CameraReaders.h"
#include "platform/devices/pipewire/DeviceProxy.h"
#include "platform/devices/pipewire/LinkProxy.h"
#include "platform/devices/pipewire/LoopTimer.h"
#include "platform/devices/pipewire/NodeProxy.h"

#include <map>
#include <memory>
#include <pipewire/pipewire.h>
#include <vector>

namespace Platform {

// The connection to the camera server and its list of cameras. If the server goes, it connects
// again. On the camera thread only.
class PipeWireConnection final : public NodeProxy::Listener,
                                 public DeviceProxy::Listener,
                                 public LinkProxy::Listener
{
public:
    class Observer
    {
    public:
        // The list changed; a burst of changes comes as one.
        virtual void camerasChanged() = 0;
        // No server answers, and none has before.
        virtual void serverMissing() = 0;
        // The link from this camera to this reader failed. The reader may be another program's.
        virtual void linkFailed(const QString& serial, quint32 readerId,
                                const ServerError& error) = 0;
        // The server can't run the camera with this serial.
        virtual void cameraFailed(const QString& serial, const ServerError& error) = 0;
        // The server is gone, and all streams with it.
        virtual void connectionLost() = 0;

    protected:
        ~Observer() = default;
    };

    explicit PipeWireConnection(pw_main_loop* mainLoop);
    virtual ~PipeWireConnection();
    PipeWireConnection(const PipeWireConnection&) = delete;
    PipeWireConnection& operator=(const PipeWireConnection&) = delete;

    void addObserver(Observer* observer); // connects with the first one
    void removeObserver(Observer* observer);
    void quit(); // ends the thread's loop

    void nodeDescribed(quint32 globalId, const CameraNode& node) override;
    void deviceDescribed(quint32 globalId) override;
    void linkFailed(quint32 nodeId, quint32 readerId, const ServerError& error) override;
    void nodeFailed(const CameraNode& node, const ServerError& error) override;

    pw_loop* loop() const { return m_loop; }
    pw_context* context() const { return m_context; } // for more connections
    bool isConnected() const { return m_core != nullptr; }
    const CameraList& cameras() const { return m_cameras; }
    // Why the camera doesn't run; empty if it does.
    ServerError errorOf(const QString& serial) const;
    bool isListed() const { return m_isListed; } // the first list is complete
    CameraServer server() const;
    // Another program that reads from this camera by the server. Foreign text; empty if there is
    // none.
    QString programReading(const QString& serial) const;
    // The same, also if it has the device file open past the server. May take some milliseconds.
    QString programUsing(const QString& serial) const;

private:
    std::map<quint32, std::unique_ptr<NodeProxy>>::const_iterator
    nodeWith(const QString& serial) const;
    void connectToServer();
    void disconnectFromServer();
    void onServerGone();
    void onSocketStirred();
    void onRoundTripDone(int sequence);
    void onGlobal(quint32 id, const char* type, const spa_dict* properties);
    void onGlobalRemoved(quint32 id);
    void listMayBeComplete();
    void announceSoon();
    void announce();

    static const pw_core_events CoreEvents;
    static const pw_registry_events RegistryEvents;

    pw_main_loop* m_mainLoop;
    pw_loop* m_loop;
    pw_context* m_context = nullptr;
    pw_core* m_core = nullptr;
    pw_registry* m_registry = nullptr;
    spa_hook m_coreHook{};
    spa_hook m_registryHook{};
    int m_firstRoundTrip = -1;
    bool m_isRegistryRead = false;
    bool m_wasReached = false;
    bool m_isMissing = false; // and none has ever answered
    bool m_isListed = false;
    bool m_isDenied = false;
    CameraList m_cameras;
    std::map<quint32, std::unique_ptr<NodeProxy>> m_nodes; // every video source
    std::map<quint32, std::unique_ptr<DeviceProxy>> m_devices;
    std::map<quint32, std::unique_ptr<LinkProxy>> m_links;
    CameraReaders m_readers;
    std::vector<Observer*> m_observers;
    LoopTimer m_reconnectTimer;
    LoopTimer m_lossTimer;
    LoopTimer m_announceTimer;
    SocketWatch m_socket; // the server's
    spa_source* m_socketEvent = nullptr;
    bool m_isTriedSoon = false;
};

} // namespace Platform
