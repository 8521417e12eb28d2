// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/StunProbe.h"

#include "platform/devices/ThreadName.h"
#include "platform/devices/network/ProbeWorker.h"

namespace Platform {

StunProbe::StunProbe(const StunServer& server, Listener& listener, AddressHandler onClientAddress,
                     const QString& nameservers)
{
    const Mailbox::Sender sender = m_mailbox.sender();
    ProbeWorker::Reports reports;
    reports.figures = [this, sender, &listener](const NetworkFigures& figures) {
        sender.post([this, &listener, figures] {
            m_figures = figures;
            listener.networkFiguresChanged();
        });
    };
    reports.clientAddress = [sender,
                             handler = std::move(onClientAddress)](const QHostAddress& address) {
        if (handler) {
            sender.post([handler, text = address.toString()] { handler(text); });
        }
    };
    // Once the event loop runs: what the probe needs is loaded then, and not before a dialog is
    // there.
    sender.post([this, server, nameservers, reports = std::move(reports)] {
        auto* worker = new ProbeWorker(server, nameservers, reports);
        worker->moveToThread(&m_thread);
        QObject::connect(&m_thread, &QThread::started, worker, &ProbeWorker::start);
        QObject::connect(&m_thread, &QThread::finished, worker, &QObject::deleteLater);
        ThreadName::set(m_thread, QStringLiteral("StunProbe"));
        m_thread.start();
    });
}

StunProbe::~StunProbe()
{
    m_mailbox.close();
    m_thread.quit();
    m_thread.wait();
}

} // namespace Platform
