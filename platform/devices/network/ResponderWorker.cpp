// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/ResponderWorker.h"

#include <QNetworkDatagram>

namespace Platform {

namespace {

constexpr qint64 MaxDatagramSize = 1500;
constexpr int MaxDatagramsAtOnce = 64;
constexpr qint64 SecondMs = 1000;

} // namespace

ResponderWorker::ResponderWorker(int maxAnswersPerSecond)
    : m_maxAnswersPerSecond(maxAnswersPerSecond), m_socket(this)
{
    m_second.start();
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
        const auto port = quint16(datagram.senderPort());
        const QByteArray answer =
            m_answerer.answer(datagram.data(), datagram.senderAddress(), port);
        if (!answer.isEmpty() && takeTurn()) {
            m_socket.writeDatagram(answer, datagram.senderAddress(), port);
        }
    }
}

bool ResponderWorker::takeTurn()
{
    if (m_second.elapsed() >= SecondMs) {
        m_second.start();
        m_answers = 0;
    }
    return m_answers++ < m_maxAnswersPerSecond;
}

} // namespace Platform
