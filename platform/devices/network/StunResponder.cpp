// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/StunResponder.h"

#include "platform/devices/ThreadName.h"
#include "platform/devices/network/ResponderWorker.h"

#include <memory>

namespace Platform {

StunResponder::StunResponder(const QHostAddress& address, quint16 port)
{
    auto worker = std::make_unique<ResponderWorker>();
    if (!worker->bind(address, port)) {
        m_errorString = worker->errorString();
        return;
    }
    m_server = {address.toString(), worker->port()};
    worker->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, worker.release(), &QObject::deleteLater);
    ThreadName::set(m_thread, QStringLiteral("StunResponder"));
    m_thread.start();
}

StunResponder::~StunResponder()
{
    m_thread.quit();
    m_thread.wait();
}

} // namespace Platform
