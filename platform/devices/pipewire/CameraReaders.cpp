// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/CameraReaders.h"

#include "platform/devices/pipewire/NodeProperties.h"

#include <QCoreApplication>
#include <pipewire/keys.h>

namespace Platform {

void CameraReaders::addClient(quint32 id, const spa_dict* properties)
{
    const QString process = propertyOf(properties, PW_KEY_SEC_PID);
    m_clients[id] = {propertyOf(properties, PW_KEY_APP_NAME),
                     process.toLongLong() == QCoreApplication::applicationPid()};
}

void CameraReaders::addNode(quint32 id, const spa_dict* properties)
{
    const QString client = propertyOf(properties, PW_KEY_CLIENT_ID);
    if (!client.isEmpty()) {
        m_owners[id] = client.toUInt();
    }
}

void CameraReaders::addLink(quint32 id, const spa_dict* properties)
{
    m_links[id] = {propertyOf(properties, PW_KEY_LINK_OUTPUT_NODE).toUInt(),
                   propertyOf(properties, PW_KEY_LINK_INPUT_NODE).toUInt()};
}

void CameraReaders::remove(quint32 id)
{
    m_clients.erase(id);
    m_owners.erase(id);
    m_links.erase(id);
}

void CameraReaders::clear()
{
    m_clients.clear();
    m_owners.clear();
    m_links.clear();
}

QString CameraReaders::programReading(quint32 nodeId) const
{
    for (const auto& [id, link] : m_links) {
        const QString program = link.from == nodeId ? programOf(link.to) : QString();
        if (!program.isEmpty()) {
            return program;
        }
    }
    return {};
}

QString CameraReaders::programOf(quint32 nodeId) const
{
    const auto owner = m_owners.find(nodeId);
    const auto client = owner == m_owners.end() ? m_clients.end() : m_clients.find(owner->second);
    return client == m_clients.end() || client->second.isThisProcess ? QString()
                                                                     : client->second.program;
}

} // namespace Platform
