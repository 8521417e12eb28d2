// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/PeerFaults.h"

#include "platform/devices/DeviceEngine.h"
#include "tests/campaign/Holdings.h"
#include "tests/campaign/HostilePeer.h"
#include "tests/campaign/ProgramCheck.h"
#include "tests/support/TestProcess.h"

#include <QCoreApplication>
#include <QTest>

namespace {

using Expect = ProgramCheck::Expect;

constexpr int LookupMs = 2500;
constexpr int SilentLookupMs = 60000;
constexpr int UnloadTimeoutMs = 60000;
constexpr int UnloadCycles = 100;

class ProbeListener final : public Platform::NetworkProbe::Listener
{
public:
    virtual ~ProbeListener() = default;
    void networkFiguresChanged() override {}
};

QString addressOf(const HostilePeer& peer)
{
    return QStringLiteral("127.0.0.1:%1").arg(peer.port());
}

void countAnswers(Injection& injection, const HostilePeer& peer)
{
    injection.require(peer.answers() > 0, QStringLiteral("nobody asked the peer"));
    injection.count(1);
    injection.countSignals(peer.answers());
}

// A whole check on a machine without devices.
void check(Injection& injection, const HostilePeer& peer, const QStringList& arguments)
{
    ProgramCheck check(injection);
    check.startOnDevices(arguments);
    check.finish(Expect::Report);
    countAnswers(injection, peer);
}

} // namespace

void PeerFaults::stun(Injection& injection)
{
    const HostilePeer peer(HostilePeer::Kind::Stun, quint32(injection.random(0, 1000000)));
    check(injection, peer, {QStringLiteral("--server"), addressOf(peer)});
}

// The probe alone: the program asks the name servers of the system.
void PeerFaults::dns(Injection& injection)
{
    const Holdings before = Holdings::now();
    {
        const HostilePeer peer(HostilePeer::Kind::Dns, quint32(injection.random(0, 1000000)));
        Platform::DeviceEngineConfig config;
        config.server = QStringLiteral("campaign.example");
        config.nameservers = addressOf(peer);
        Platform::DeviceEngine engine(config);
        ProbeListener listener;
        const auto probe = engine.createNetworkProbe(listener);
        QTest::qWait(LookupMs);
        countAnswers(injection, peer);
    }
    const QString held = Holdings::problemAgainst(before);
    injection.require(injection.number() == 0 || held.isEmpty(), held);
}

void PeerFaults::http(Injection& injection)
{
    const HostilePeer peer(HostilePeer::Kind::Http, quint32(injection.random(0, 1000000)));
    check(injection, peer,
          {QStringLiteral("--report-url"), QStringLiteral("http://") + addressOf(peer)});
}

void PeerFaults::tls(Injection& injection)
{
    const HostilePeer peer(HostilePeer::Kind::Tls, quint32(injection.random(0, 1000000)));
    check(injection, peer,
          {QStringLiteral("--report-url"), QStringLiteral("https://") + addressOf(peer)});
}

void PeerFaults::silentDns(Injection& injection)
{
    ProgramCheck check(injection);
    check.program().setFault("FAULT_LOOKUP_MS", QString::number(SilentLookupMs));
    check.program().setVariable("PULSE_SERVER", QStringLiteral("tcp:silent.example"));
    check.startOnDevices({QStringLiteral("--server"), QStringLiteral("silent.example:3478"),
                          QStringLiteral("--report-url"),
                          QStringLiteral("http://silent.example/")});
    injection.count(1);
    check.finish(Expect::Report);
}

void PeerFaults::unload(Injection& injection)
{
#ifdef ENVCHECK_UNLOAD
    TestSupport::TestProcess program;
    program.start(QStringLiteral(ENVCHECK_UNLOAD), {QStringLiteral(ENVCHECK_LIBRARY)});
    injection.require(program.waitForFinished(UnloadTimeoutMs) &&
                          program.exitStatus() == QProcess::NormalExit && program.exitCode() == 0,
                      QString::fromUtf8(program.readAll()));
    injection.count(UnloadCycles);
#else
    injection.fail(QStringLiteral("not in this build"));
#endif
}
