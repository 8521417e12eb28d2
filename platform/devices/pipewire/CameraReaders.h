// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <map>

struct spa_dict;

namespace Platform {

// Which programs read from which nodes, as the server's registry tells. On the camera thread only.
class CameraReaders
{
public:
    // All take the properties of a new object.
    void addClient(quint32 id, const spa_dict* properties);
    void addNode(quint32 id, const spa_dict* properties);
    void addLink(quint32 id, const spa_dict* properties);
    void remove(quint32 id); // of any object
    void clear();

    // Another program that reads from the node. Foreign text; empty if there is none.
    QString programReading(quint32 nodeId) const;

private:
    struct Client
    {
        QString program;
        bool isThisProcess = false;
    };
    struct Link
    {
        quint32 from = 0;
        quint32 to = 0;
    };

    QString programOf(quint32 nodeId) const;

    std::map<quint32, Client> m_clients;
    std::map<quint32, quint32> m_owners; // node to client
    std::map<quint32, Link> m_links;
};

} // namespace Platform
