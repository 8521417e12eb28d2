// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/StunServer.h"
#include "platform/devices/network/ProbeWorker.h"

#include <QAbstractEventDispatcher>
#include <QNetworkDatagram>
#include <QTimerEvent>
#include <QUdpSocket>
#include <QtTest>

using namespace Platform;

// The worker on the test's own thread, tick by tick.
class tst_ProbeWorker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusalInPlaceOfSendingKeepsTheSocket();
};

namespace {

constexpr int ProbeIntervalMs = 100;

void tick(ProbeWorker& worker)
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(&worker);
    for (const auto& timer : timers) {
        if (timer.interval == ProbeIntervalMs) {
            QTimerEvent event(timer.timerId);
            QCoreApplication::sendEvent(&worker, &event);
        }
    }
}

int nextSenderPort(QUdpSocket& server)
{
    return server.waitForReadyRead(1000) ? server.receiveDatagram().senderPort() : 0;
}

} // namespace

// A server that is starting is measured from its first moment on.
void tst_ProbeWorker::refusalInPlaceOfSendingKeepsTheSocket()
{
    const QHostAddress local(QHostAddress::LocalHost);
    QUdpSocket server;
    QVERIFY(server.bind(local, 0));
    const quint16 port = server.localPort();
    ProbeWorker worker({local.toString(), port}, {},
                       {[](const NetworkFigures&) {}, [](const QHostAddress&) {}});
    worker.start();
    const int sender = nextSenderPort(server);
    QVERIFY(sender > 0);
    server.close();
    tick(worker); // is refused
    tick(worker); // hears of it
    QVERIFY(server.bind(local, port));
    tick(worker);
    QCOMPARE(nextSenderPort(server), sender);
}

QTEST_GUILESS_MAIN(tst_ProbeWorker)
#include "tst_ProbeWorker.moc"
