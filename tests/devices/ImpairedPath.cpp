// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/ImpairedPath.h"

#include <QElapsedTimer>
#include <QNetworkDatagram>
#include <QTimer>
#include <QUdpSocket>
#include <algorithm>
#include <deque>

namespace {

class Relay : public QObject
{
public:
    Relay(const Platform::StunServer& target, std::shared_ptr<ImpairedPath::Settings> settings)
        : m_target(target.host),
          m_targetPort(target.port),
          m_settings(std::move(settings)),
          m_near(this),
          m_far(this),
          m_timer(this)
    {
        m_near.bind(m_target, 0);
        m_far.bind(m_target, 0);
        m_clock.start();
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_near, &QUdpSocket::readyRead, this, &Relay::takeRequests);
        connect(&m_far, &QUdpSocket::readyRead, this, &Relay::takeAnswers);
        connect(&m_timer, &QTimer::timeout, this, &Relay::deliver);
    }

    QHostAddress address() const { return m_near.localAddress(); }
    quint16 port() const { return m_near.localPort(); }

private:
    struct Held
    {
        qint64 dueNs;
        QByteArray answer;
    };

    void takeRequests()
    {
        while (m_near.hasPendingDatagrams()) {
            const QNetworkDatagram request = m_near.receiveDatagram();
            m_client = request.senderAddress();
            m_clientPort = quint16(request.senderPort());
            m_debt += m_settings->lossPercent;
            if (m_debt >= 100) {
                m_debt -= 100;
                continue;
            }
            m_far.writeDatagram(request.data(), m_target, m_targetPort);
        }
    }

    void takeAnswers()
    {
        while (m_far.hasPendingDatagrams()) {
            const QByteArray answer = m_far.receiveDatagram().data();
            const qint64 delayNs = qint64(m_settings->delayMs) * 1000000;
            m_held.push_back({m_clock.nsecsElapsed() + delayNs, answer});
        }
        deliver();
    }

    void deliver()
    {
        while (!m_held.empty() && m_held.front().dueNs <= m_clock.nsecsElapsed()) {
            m_near.writeDatagram(m_held.front().answer, m_client, m_clientPort);
            m_held.pop_front();
        }
        if (!m_held.empty()) {
            m_timer.start(
                std::max(0, int((m_held.front().dueNs - m_clock.nsecsElapsed()) / 1000000)));
        }
    }

    const QHostAddress m_target;
    const quint16 m_targetPort;
    const std::shared_ptr<ImpairedPath::Settings> m_settings;
    QHostAddress m_client;
    quint16 m_clientPort = 0;
    int m_debt = 0;
    std::deque<Held> m_held;
    QElapsedTimer m_clock;
    QUdpSocket m_near;
    QUdpSocket m_far;
    QTimer m_timer;
};

} // namespace

ImpairedPath::ImpairedPath(const Platform::StunServer& target)
{
    auto relay = std::make_unique<Relay>(target, m_settings);
    m_address = relay->address();
    m_port = relay->port();
    relay->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, relay.release(), &QObject::deleteLater);
    m_thread.start();
}

ImpairedPath::~ImpairedPath()
{
    m_thread.quit();
    m_thread.wait();
}

Platform::StunServer ImpairedPath::server() const
{
    return {m_address.toString(), m_port};
}
