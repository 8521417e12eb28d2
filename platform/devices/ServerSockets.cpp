// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/ServerSockets.h"

#include <QList>

namespace Platform {

namespace {

// A path, as PULSE_SERVER has it: "/path", "unix:/path", "{machine}unix:/path". Empty if it is
// none.
QByteArray pathOf(QByteArray address)
{
    if (address.startsWith('{')) {
        address = address.mid(address.indexOf('}') + 1);
    }
    if (address.startsWith("unix:")) {
        address = address.mid(int(qstrlen("unix:")));
    }
    return address.startsWith('/') ? address : QByteArray();
}

} // namespace

std::vector<QByteArray> ServerSockets::ofPulse()
{
    const QByteArray servers = qgetenv("PULSE_SERVER").simplified();
    if (!servers.isEmpty()) {
        std::vector<QByteArray> paths;
        for (const QByteArray& address : servers.split(' ')) {
            if (!pathOf(address).isEmpty()) {
                paths.push_back(pathOf(address));
            }
        }
        return paths;
    }
    std::vector<QByteArray> paths{"/run/pulse/native"}; // of a server for all users
    const QByteArray own = qgetenv("PULSE_RUNTIME_PATH");
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    if (!own.isEmpty()) {
        paths.push_back(own + "/native");
    } else if (!runtime.isEmpty()) {
        paths.push_back(runtime + "/pulse/native");
    }
    return paths;
}

std::vector<QByteArray> ServerSockets::ofPipeWire()
{
    const QByteArray remote = qgetenv("PIPEWIRE_REMOTE");
    if (remote.startsWith('/')) {
        return {remote};
    }
    const QByteArray name = remote.isEmpty() ? QByteArray("pipewire-0") : remote;
    for (const char* variable : {"PIPEWIRE_RUNTIME_DIR", "XDG_RUNTIME_DIR", "USERPROFILE"}) {
        const QByteArray folder = qgetenv(variable);
        if (!folder.isEmpty()) {
            return {folder + '/' + name};
        }
    }
    return {};
}

} // namespace Platform
