// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/SocketWatch.h"

#include "platform/backend/DetachedThread.h"

#include <climits>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>

namespace Platform {

namespace {

struct Split
{
    QByteArray folder;
    QByteArray name;
};

Split split(const QByteArray& path)
{
    const int slash = path.lastIndexOf('/');
    return {slash > 0 ? path.left(slash) : QByteArray("/"), path.mid(slash + 1)};
}

} // namespace

SocketWatch::SocketWatch(const std::vector<QByteArray>& paths)
    : m_descriptor(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
{
    for (const QByteArray& path : paths) {
        const Split socket = split(path);
        const Split folder = split(socket.folder);
        m_places[socket.folder].names.insert(socket.name);
        m_places[folder.folder].names.insert(folder.name);
    }
}

// Linux waits 5 to 25 ms before it gives up a watch, and whoever ends a session waits for its
// threads.
SocketWatch::~SocketWatch()
{
    if (m_descriptor < 0) {
        return;
    }
    const auto close = [descriptor = m_descriptor] { ::close(descriptor); };
    if (!DetachedThread::run(close)) {
        close();
    }
}

// Watching a folder again changes nothing, unless it is another one of this name.
void SocketWatch::renew()
{
    for (auto& [folder, place] : m_places) {
        place.watch = ::inotify_add_watch(m_descriptor, folder.constData(),
                                          IN_CREATE | IN_MOVED_TO | IN_ATTRIB | IN_ONLYDIR);
    }
}

bool SocketWatch::hasAppeared()
{
    constexpr std::size_t EventBytes = sizeof(inotify_event) + NAME_MAX + 1;
    constexpr std::size_t ManyEvents = 16;
    alignas(inotify_event) char buffer[EventBytes * ManyEvents];
    // What doesn't fit keeps the descriptor readable.
    const ssize_t size = ::read(m_descriptor, buffer, sizeof buffer);
    bool result = false;
    for (ssize_t at = 0; at < size;) {
        inotify_event event{};
        std::memcpy(&event, buffer + at, sizeof event);
        at += ssize_t(sizeof event);
        const QByteArray name(event.len > 0 ? buffer + at : "");
        at += ssize_t(event.len);
        for (const auto& [folder, place] : m_places) {
            result = result || (place.watch == event.wd && place.names.count(name) > 0);
        }
    }
    return result;
}

} // namespace Platform
