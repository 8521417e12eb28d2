// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/PipeWireConnection.h"

#include "platform/backend/Log.h"
#include "platform/devices/ServerSockets.h"
#include "platform/devices/camera/DeviceFileUser.h"
#include "platform/devices/pipewire/NodeProperties.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace Platform {

namespace {

constexpr std::chrono::milliseconds ReconnectDelay(300);
constexpr std::chrono::milliseconds AppearedDelay(20); // the socket is there before anybody listens
// They have the file open for those who read through them.
const QStringList ServerPrograms = {QStringLiteral("pipewire"), QStringLiteral("wireplumber")};

} // namespace

const pw_core_events PipeWireConnection::CoreEvents = [] {
    pw_core_events events{};
    events.version = PW_VERSION_CORE_EVENTS;
    events.done = [](void* data, uint32_t id, int sequence) {
        if (id == PW_ID_CORE) {
            static_cast<PipeWireConnection*>(data)->onRoundTripDone(sequence);
        }
    };
    events.error = [](void* data, uint32_t id, int, int result, const char*) {
        if (id == PW_ID_CORE && (result == -EPIPE || result == -ECONNRESET)) {
            // Later: a connection can't be closed from inside its own event.
            static_cast<PipeWireConnection*>(data)->m_lossTimer.startOnce({});
        }
    };
    return events;
}();

const pw_registry_events PipeWireConnection::RegistryEvents = [] {
    pw_registry_events events{};
    events.version = PW_VERSION_REGISTRY_EVENTS;
    events.global = [](void* data, uint32_t id, uint32_t, const char* type, uint32_t,
                       const spa_dict* properties) {
        static_cast<PipeWireConnection*>(data)->onGlobal(id, type, properties);
    };
    events.global_remove = [](void* data, uint32_t id) {
        static_cast<PipeWireConnection*>(data)->onGlobalRemoved(id);
    };
    return events;
}();

PipeWireConnection::PipeWireConnection(pw_main_loop* mainLoop)
    : m_mainLoop(mainLoop),
      m_loop(pw_main_loop_get_loop(mainLoop)),
      m_reconnectTimer(m_loop, [this] { connectToServer(); }),
      m_lossTimer(m_loop, [this] { onServerGone(); }),
      m_announceTimer(m_loop, [this] { announce(); }),
      m_socket(ServerSockets::ofPipeWire())
{
    const auto onReadable = [](void* data, int, uint32_t) {
        static_cast<PipeWireConnection*>(data)->onSocketStirred();
    };
    if (m_socket.descriptor() >= 0) {
        m_socketEvent =
            pw_loop_add_io(m_loop, m_socket.descriptor(), SPA_IO_IN, false, onReadable, this);
    }
}

PipeWireConnection::~PipeWireConnection()
{
    disconnectFromServer();
    if (m_context) {
        pw_context_destroy(m_context);
    }
    if (m_socketEvent) {
        pw_loop_destroy_source(m_loop, m_socketEvent);
    }
}

void PipeWireConnection::addObserver(Observer* observer)
{
    m_observers.push_back(observer);
    if (!m_context) {
        connectToServer();
    } else if (m_isListed || m_isDenied) {
        observer->camerasChanged();
    } else if (m_isMissing) {
        observer->serverMissing();
    }
}

void PipeWireConnection::removeObserver(Observer* observer)
{
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), observer),
                      m_observers.end());
}

void PipeWireConnection::quit()
{
    pw_main_loop_quit(m_mainLoop);
}

ServerError PipeWireConnection::errorOf(const QString& serial) const
{
    const auto it = nodeWith(serial);
    return it == m_nodes.cend() ? ServerError() : it->second->error();
}

CameraServer PipeWireConnection::server() const
{
    if (m_isDenied) {
        return CameraServer::Denies;
    }
    return m_wasReached && !m_core ? CameraServer::Lost : CameraServer::Answers;
}

QString PipeWireConnection::programReading(const QString& serial) const
{
    const auto it = nodeWith(serial);
    return it == m_nodes.cend() ? QString() : m_readers.programReading(it->first);
}

QString PipeWireConnection::programUsing(const QString& serial) const
{
    const QString reader = programReading(serial);
    const auto it = nodeWith(serial);
    return reader.isEmpty() && it != m_nodes.cend()
               ? DeviceFileUser::nameOf(it->second->node().file, ServerPrograms)
               : reader;
}

std::map<quint32, std::unique_ptr<NodeProxy>>::const_iterator
PipeWireConnection::nodeWith(const QString& serial) const
{
    return std::find_if(m_nodes.cbegin(), m_nodes.cend(), [&serial](const auto& entry) {
        return entry.second->node().serial == serial;
    });
}

void PipeWireConnection::connectToServer()
{
    m_isTriedSoon = false;
    m_socket.renew();
    if (!m_context) {
        m_context = pw_context_new(m_loop, nullptr, 0);
    }
    if (m_context) {
        m_core = pw_context_connect(m_context, nullptr, 0);
    }
    if (!m_core) {
        const int reason = errno;
        const bool isDenied = reason == EACCES || reason == EPERM;
        if (isDenied != m_isDenied) {
            m_isDenied = isDenied;
            qCInfo(Log::camera, "The camera server refuses the connection: %s", strerror(reason));
            announce();
        }
        if (!isDenied && !m_wasReached && !m_isMissing) {
            m_isMissing = true;
            for (Observer* observer : m_observers) {
                observer->serverMissing();
            }
        }
        m_reconnectTimer.startOnce(ReconnectDelay);
        return;
    }
    m_isDenied = false;
    m_isMissing = false;
    m_wasReached = true;
    m_isRegistryRead = false;
    pw_core_add_listener(m_core, &m_coreHook, &CoreEvents, this);
    m_registry = pw_core_get_registry(m_core, PW_VERSION_REGISTRY, 0);
    pw_registry_add_listener(m_registry, &m_registryHook, &RegistryEvents, this);
    m_firstRoundTrip = pw_core_sync(m_core, PW_ID_CORE, 0);
}

void PipeWireConnection::disconnectFromServer()
{
    m_nodes.clear();
    m_devices.clear();
    m_links.clear();
    m_readers.clear();
    if (m_registry) {
        spa_hook_remove(&m_registryHook);
        pw_proxy_destroy(reinterpret_cast<pw_proxy*>(m_registry));
        m_registry = nullptr;
    }
    if (m_core) {
        spa_hook_remove(&m_coreHook);
        pw_core_disconnect(m_core);
        m_core = nullptr;
    }
}

void PipeWireConnection::onServerGone()
{
    qCInfo(Log::camera, "The camera server is gone");
    for (Observer* observer : m_observers) {
        observer->connectionLost();
    }
    disconnectFromServer();
    m_cameras.clear();
    m_isListed = false;
    announce();
    m_reconnectTimer.startOnce(ReconnectDelay);
}

void PipeWireConnection::onSocketStirred()
{
    if (m_socket.hasAppeared() && m_reconnectTimer.isActive() && !m_isTriedSoon) {
        m_isTriedSoon = true;
        m_reconnectTimer.startOnce(AppearedDelay);
    }
}

void PipeWireConnection::onRoundTripDone(int sequence)
{
    if (sequence == m_firstRoundTrip) {
        m_isRegistryRead = true;
        listMayBeComplete();
    }
}

void PipeWireConnection::onGlobal(quint32 id, const char* type, const spa_dict* properties)
{
    if (!properties) {
        return;
    }
    if (strcmp(type, PW_TYPE_INTERFACE_Client) == 0) {
        m_readers.addClient(id, properties);
    } else if (strcmp(type, PW_TYPE_INTERFACE_Node) == 0) {
        m_readers.addNode(id, properties);
    } else if (strcmp(type, PW_TYPE_INTERFACE_Link) == 0) {
        m_readers.addLink(id, properties);
    }
    const QString mediaClass = propertyOf(properties, PW_KEY_MEDIA_CLASS);
    if (strcmp(type, PW_TYPE_INTERFACE_Node) == 0 && mediaClass == QLatin1String("Video/Source")) {
        m_nodes[id] = std::make_unique<NodeProxy>(m_registry, id, properties, *this);
    } else if (strcmp(type, PW_TYPE_INTERFACE_Device) == 0 &&
               mediaClass == QLatin1String("Video/Device")) {
        m_devices[id] = std::make_unique<DeviceProxy>(m_registry, id, *this);
    } else if (strcmp(type, PW_TYPE_INTERFACE_Link) == 0 &&
               m_nodes.count(propertyOf(properties, PW_KEY_LINK_OUTPUT_NODE).toUInt()) > 0) {
        m_links[id] = std::make_unique<LinkProxy>(m_registry, id, *this);
    }
}

void PipeWireConnection::onGlobalRemoved(quint32 id)
{
    m_nodes.erase(id);
    m_devices.erase(id);
    m_links.erase(id);
    m_readers.remove(id);
    if (m_cameras.remove(id)) {
        announceSoon();
    }
    listMayBeComplete();
}

void PipeWireConnection::nodeDescribed(quint32 globalId, const CameraNode& node)
{
    const auto device = node.deviceId ? m_devices.find(*node.deviceId) : m_devices.cend();
    const bool isDeviceKnown = device != m_devices.cend();
    if (m_cameras.add(globalId, isDeviceKnown ? device->second->completed(node) : node)) {
        announceSoon();
    }
    listMayBeComplete();
}

// Usually before its nodes are described, but not always.
void PipeWireConnection::deviceDescribed(quint32 globalId)
{
    for (const auto& [nodeId, node] : m_nodes) {
        if (node->isDone() && node->node().deviceId == globalId) {
            nodeDescribed(nodeId, node->node());
        }
    }
}

void PipeWireConnection::linkFailed(quint32 nodeId, quint32 readerId, const ServerError& error)
{
    const auto it = m_nodes.find(nodeId);
    if (it == m_nodes.cend()) {
        return;
    }
    for (Observer* observer : m_observers) {
        observer->linkFailed(it->second->node().serial, readerId, error);
    }
}

void PipeWireConnection::nodeFailed(const CameraNode& node, const ServerError& error)
{
    for (Observer* observer : m_observers) {
        observer->cameraFailed(node.serial, error);
    }
}

// The first list is announced at once, when it is complete. Later changes come in bursts.
void PipeWireConnection::listMayBeComplete()
{
    const bool isPending = std::any_of(m_nodes.cbegin(), m_nodes.cend(),
                                       [](const auto& entry) { return !entry.second->isDone(); });
    if (!m_isListed && m_isRegistryRead && !isPending) {
        m_isListed = true;
        announce();
    }
}

void PipeWireConnection::announceSoon()
{
    if (m_isListed && !m_announceTimer.isActive()) {
        m_announceTimer.startOnce(CameraBurstWindow);
    }
}

void PipeWireConnection::announce()
{
    m_announceTimer.stop();
    for (Observer* observer : m_observers) {
        observer->camerasChanged();
    }
}

} // namespace Platform
