// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/ResponderWorker.h"

#include "platform/devices/network/Datagrams.h"

#include <QNetworkDatagram>
#include <QRandomGenerator>

namespace Platform {

ResponderWorker::ResponderWorker()
    : m_budget(QRandomGenerator::system()->generate64()), m_socket(this)
{
    m_clock.start();
    connect(&m_socket, &QUdpSocket::readyRead, this, &ResponderWorker::readDatagrams);
}

bool ResponderWorker::bind(const QHostAddress& address, quint16 port)
{
    return m_socket.bind(address, port, QUdpSocket::DontShareAddress);
}

void ResponderWorker::readDatagrams()
{
    for (int count = 0; count < MaxDatagramsAtOnce; ++count) {
        const QNetworkDatagram datagram = m_socket.receiveDatagram(MaxDatagramSize);
        if (!datagram.isValid()) {
            return;
        }
        const QHostAddress sender = datagram.senderAddress();
        const auto port = quint16(datagram.senderPort());
        if (!m_budget.take(sender, port, m_clock.elapsed())) {
            continue;
        }
        const QByteArray answer = m_answerer.answer(datagram.data(), sender, port);
        if (!answer.isEmpty()) {
            QNetworkDatagram reply(answer, sender, port);
            // Clients take answers only from the address they asked, and a machine has several.
            reply.setSender(datagram.destinationAddress());
            m_socket.writeDatagram(reply);
        }
    }
}

} // namespace Platform
