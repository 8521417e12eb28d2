// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/v4l2/VideoDevices.h"

#include <QMap>
#include <QObject>
#include <atomic>
#include <memory>
#include <mutex>

namespace TestSupport {

// The sockets of a machine, in which a test plugs cameras. Outlives the devices that it makes.
class VirtualSockets
{
public:
    void plug(const Platform::VideoDevices::Properties& properties)
    {
        const std::scoped_lock lock(m_mutex);
        m_present.insert(properties.value(QStringLiteral("DEVNAME")), properties);
        post([properties](Platform::VideoDevices::Listener& listener) {
            listener.deviceFound(properties);
        });
    }
    void unplug(const QString& path)
    {
        const std::scoped_lock lock(m_mutex);
        m_present.remove(path);
        post([path](Platform::VideoDevices::Listener& listener) { listener.deviceGone(path); });
    }
    std::unique_ptr<Platform::VideoDevices> makeDevices()
    {
        return std::make_unique<Devices>(*this);
    }
    int users() const { return m_users; }

private:
    class Devices final : public Platform::VideoDevices
    {
    public:
        explicit Devices(VirtualSockets& sockets) : m_sockets(sockets) { ++sockets.m_users; }
        ~Devices() override
        {
            const std::scoped_lock lock(m_sockets.m_mutex);
            m_sockets.m_receiver = nullptr;
        }
        void start(Listener& listener) override
        {
            const std::scoped_lock lock(m_sockets.m_mutex);
            m_sockets.m_receiver = &m_receiver;
            m_sockets.m_listener = &listener;
            for (const Properties& properties : qAsConst(m_sockets.m_present)) {
                listener.deviceFound(properties);
            }
        }

    private:
        VirtualSockets& m_sockets;
        QObject m_receiver;
    };

    template <typename Function>
    void post(Function function)
    {
        if (m_receiver) {
            QMetaObject::invokeMethod(
                m_receiver, [function, listener = m_listener] { function(*listener); },
                Qt::QueuedConnection);
        }
    }

    std::mutex m_mutex;
    QMap<QString, Platform::VideoDevices::Properties> m_present;
    QObject* m_receiver = nullptr;
    Platform::VideoDevices::Listener* m_listener = nullptr;
    std::atomic_int m_users = 0;
};

} // namespace TestSupport
