// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/MachineFacts.h"
#include "platform/backend/StunServer.h"
#include "platform/devices/facts/DeviceFacts.h"
#include "platform/devices/facts/LocalAddress.h"
#include "platform/devices/network/StunProbe.h"
#include "tests/devices/OddServer.h"
#include "tests/devices/ThreadCount.h"
#include "tests/support/AtOnce.h"

#include <QDir>
#include <QElapsedTimer>
#include <QNetworkDatagram>
#include <QTest>

using namespace Platform;

class tst_DeviceFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void factsAtHand();
    void configurationComesFirst();
    void operatingSystemsUserComesSecond();
    void preparedFacts();
    void deadServerIsNotWaitedFor();
    void lateAddressIsTaken();
    void silentServerIsAskedForAWhile();
    void preparingTwice();
    void refreshedUser();
    void endsInTheMiddle();
};

namespace {

DeviceFacts::ProbeMaker asking(const StunServer& server)
{
    return [server](NetworkProbe::Listener& listener, DeviceFacts::AddressHandler handler) {
        return std::make_unique<StunProbe>(server, listener, std::move(handler));
    };
}

// Nobody listens on the discard port.
const StunServer NoServer{QStringLiteral("127.0.0.1"), 9};

class Listener : public SystemFacts::Listener
{
public:
    void userInfoArrived() override { ++arrivals; }
    void sessionBrokeDown() override { QFAIL("no such thing happens here"); }
    void userKickedOut() override { QFAIL("no such thing happens here"); }

    int arrivals = 0;
};

} // namespace

void tst_DeviceFacts::factsAtHand()
{
    DeviceEngineConfig config;
    config.cdnFirstPart = QStringLiteral("<i>north</i>");
    config.cdnSecondPart = QStringLiteral("edge 7");
    const DeviceFacts facts(config, QStringLiteral("the server"), asking(NoServer));
    QCOMPARE(facts.serverName(), QStringLiteral("the server"));
    QCOMPARE(facts.cdnFirstPart(), config.cdnFirstPart);
    QCOMPARE(facts.cdnSecondPart(), config.cdnSecondPart);
    QCOMPARE(facts.processorName(), MachineFacts::processorName());
    QCOMPARE(facts.operatingSystem(), MachineFacts::operatingSystem());
    QCOMPARE(facts.cacheVolumeAvailableBytes(), qint64(-1)); // not read yet
}

void tst_DeviceFacts::configurationComesFirst()
{
    DeviceEngineConfig config;
    config.account = QStringLiteral("pupil@example.org");
    config.nickname = QStringLiteral("Zoë 🦊");
    DeviceFacts facts(config, {}, asking(NoServer));
    QCOMPARE(facts.accountName(), config.account);
    QCOMPARE(facts.nickName(), config.nickname);
    bool isDone = false;
    facts.prepare([&isDone] { isDone = true; });
    QTRY_VERIFY(isDone);
    QCOMPARE(facts.accountName(), config.account);
    QCOMPARE(facts.nickName(), config.nickname);
}

void tst_DeviceFacts::operatingSystemsUserComesSecond()
{
    DeviceFacts facts({}, {}, asking(NoServer));
    bool isDone = false;
    facts.prepare([&isDone] { isDone = true; });
    QVERIFY(!isDone);
    QTRY_VERIFY(isDone);
    const HostUser user = HostUser::current();
    QCOMPARE(facts.accountName(), QString()); // so that the other one is asked for
    QCOMPARE(facts.accountFallbackName(), user.loginName);
    QCOMPARE(facts.nickName(), user.realName.isEmpty() ? user.loginName : user.realName);
}

void tst_DeviceFacts::preparedFacts()
{
    OddServer server([](OddServer& self, const QNetworkDatagram& request) {
        self.send(OddServer::rightAnswer(request), request);
    });
    DeviceEngineConfig config;
    config.cacheFolder = QDir::tempPath() + QStringLiteral("/not/there/yet");
    DeviceFacts facts(config, {}, asking(server.server()));
    QElapsedTimer clock;
    clock.start();
    qint64 took = -1;
    facts.prepare([&] { took = clock.elapsed(); });
    QVERIFY2(clock.elapsed() < AtOnceMs, qPrintable(QString::number(clock.elapsed())));
    QTRY_VERIFY(took >= 0);
    QVERIFY2(took < DeviceFacts::PrepareDeadlineMs / 2, qPrintable(QString::number(took)));
    QVERIFY(facts.cacheVolumeAvailableBytes() > 0);
    QTRY_COMPARE(facts.clientAddress(), QStringLiteral("127.0.0.1")); // as the server saw it
}

void tst_DeviceFacts::deadServerIsNotWaitedFor()
{
    DeviceFacts facts({}, {}, asking(NoServer));
    QElapsedTimer clock;
    clock.start();
    qint64 took = -1;
    facts.prepare([&] { took = clock.elapsed(); });
    QTRY_VERIFY(took >= 0);
    QVERIFY2(took < DeviceFacts::PrepareDeadlineMs / 2, qPrintable(QString::number(took)));
    QCOMPARE(facts.clientAddress(), LocalAddress::find());
}

void tst_DeviceFacts::lateAddressIsTaken()
{
    QNetworkDatagram first;
    OddServer server([&first](OddServer&, const QNetworkDatagram& request) {
        if (!first.isValid()) {
            first = request;
        }
    });
    DeviceFacts facts({}, {}, asking(server.server()));
    int calls = 0;
    facts.prepare([&calls] { ++calls; });
    QTRY_COMPARE(calls, 1);
    QCOMPARE(facts.clientAddress(), LocalAddress::find());
    QTRY_VERIFY(first.isValid());
    server.send(OddServer::rightAnswer(first), first);
    QTRY_COMPARE(facts.clientAddress(), QStringLiteral("127.0.0.1"));
    QTRY_COMPARE(threadCount("StunProbe"), 0);
    QCOMPARE(calls, 1);
}

void tst_DeviceFacts::silentServerIsAskedForAWhile()
{
    OddServer server([](OddServer&, const QNetworkDatagram&) {});
    DeviceFacts facts({}, {}, asking(server.server()));
    facts.prepare([] {});
    QTRY_COMPARE(threadCount("StunProbe"), 1);
    QTRY_COMPARE_WITH_TIMEOUT(threadCount("StunProbe"), 0, 2 * DeviceFacts::AddressDeadlineMs);
}

void tst_DeviceFacts::preparingTwice()
{
    OddServer server([](OddServer& self, const QNetworkDatagram& request) {
        self.send(OddServer::rightAnswer(request), request);
    });
    DeviceFacts facts({}, {}, asking(server.server()));
    QList<int> calls;
    facts.prepare([&calls] { calls.append(1); });
    facts.prepare([&calls] { calls.append(2); }); // shares the run
    QTRY_COMPARE(calls, QList<int>({1, 2}));
    QTRY_VERIFY(!server.ids().isEmpty());
    const int asked = server.ids().size();
    facts.prepare([&calls] { calls.append(3); }); // asks again
    QTRY_COMPARE(calls, QList<int>({1, 2, 3}));
    QTRY_VERIFY(server.ids().size() > asked);
}

void tst_DeviceFacts::refreshedUser()
{
    Listener listener;
    DeviceFacts facts({}, {}, asking(NoServer));
    facts.setListener(&listener);
    facts.refreshUserInfo();
    QCOMPARE(listener.arrivals, 0); // never from inside the call
    QTRY_COMPARE(listener.arrivals, 1);
    QCOMPARE(facts.accountFallbackName(), HostUser::current().loginName);
    facts.setListener(nullptr);
    facts.refreshUserInfo();
    QTest::qWait(100);
    QCOMPARE(listener.arrivals, 1);
}

void tst_DeviceFacts::endsInTheMiddle()
{
    bool isDone = false;
    QElapsedTimer clock;
    {
        DeviceFacts facts({}, {}, asking(NoServer));
        facts.prepare([&isDone] { isDone = true; });
        facts.refreshUserInfo();
        clock.start();
    }
    QVERIFY(clock.elapsed() < AtOnceMs);
    QTest::qWait(DeviceFacts::PrepareDeadlineMs + 100);
    QVERIFY(!isDone);
}

QTEST_GUILESS_MAIN(tst_DeviceFacts)
#include "tst_DeviceFacts.moc"
