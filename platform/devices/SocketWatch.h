// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <map>
#include <set>
#include <vector>

namespace Platform {

// Notices when a server's socket, or the folder that it stands in, appears on this machine, so that
// the next try can come at once. For one thread. Only renew() may wait for the folder's disk. If
// the system allows no watch, the descriptor is -1 and nothing is noticed.
class SocketWatch
{
public:
    explicit SocketWatch(const std::vector<QByteArray>& paths);
    ~SocketWatch();
    SocketWatch(const SocketWatch&) = delete;
    SocketWatch& operator=(const SocketWatch&) = delete;

    int descriptor() const { return m_descriptor; } // readable if something happened there
    // To be called before each try: folders may have come meanwhile.
    void renew();
    // Reads what happened. True if a server may be there now.
    bool hasAppeared();

private:
    struct Place
    {
        std::set<QByteArray> names; // that count
        int watch = -1;
    };

    int m_descriptor;
    std::map<QByteArray, Place> m_places; // by folder
};

} // namespace Platform
