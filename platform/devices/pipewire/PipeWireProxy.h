// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <list>
#include <pipewire/pipewire.h>

namespace Platform {

// Owns a proxy, this program's end of an object on the server, and the listeners to it. On the
// camera thread only.
class PipeWireProxy
{
public:
    PipeWireProxy(pw_registry* registry, quint32 globalId, const char* type, quint32 version);
    ~PipeWireProxy();
    PipeWireProxy(const PipeWireProxy&) = delete;
    PipeWireProxy& operator=(const PipeWireProxy&) = delete;

    // Null if the server doesn't let us have one. The type is that of the constructor.
    template <typename Interface = pw_proxy>
    Interface* get() const
    {
        return reinterpret_cast<Interface*>(m_proxy);
    }
    spa_hook* newHook(); // for one listener, which is removed with the proxy

private:
    pw_proxy* m_proxy;
    std::list<spa_hook> m_hooks; // PipeWire keeps their addresses
};

} // namespace Platform
