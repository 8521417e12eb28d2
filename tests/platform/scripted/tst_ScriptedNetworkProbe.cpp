// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/platform/scripted/ScriptedTest.h"

#include <QtTest>

using namespace Platform;

namespace {

class ProbeListener : public NetworkProbe::Listener
{
public:
    void networkFiguresChanged() override { ++m_changes; }
    int changes() const { return m_changes; }

private:
    int m_changes = 0;
};

} // namespace

class tst_ScriptedNetworkProbe : public TestSupport::ScriptedTest
{
    Q_OBJECT

private Q_SLOTS:
    void measuresAlongTheSeries();
};

void tst_ScriptedNetworkProbe::measuresAlongTheSeries()
{
    ProbeListener quietListener;
    const auto quiet = m_engine->createNetworkProbe(quietListener);
    QCOMPARE(quiet->figures().delayMs, -1);

    QElapsedTimer clock;
    clock.start();
    m_engine->network().setSeries({{0, 20, 0, 10, 10}, {71, 500, 0, 20, 6}});
    QTRY_COMPARE(quietListener.changes(), 1);
    QVERIFY(clock.elapsed() < 1000);
    QCOMPARE(quiet->figures().delayMs, 20);
    QTRY_COMPARE(quietListener.changes(), 2);
    QVERIFY(clock.elapsed() >= 1000);
    QCOMPARE(quiet->figures().lossPercent, 71);
    QCOMPARE(quiet->figures().delay5Ms, 20);
    QCOMPARE(quiet->figures().delay95Ms, 500);
    QTRY_COMPARE(quietListener.changes(), 3); // the last element stays
    QCOMPARE(quiet->figures().delayMs, 500);

    m_engine->network().setFigures({1, 2, 3, 4, 5});
    QCOMPARE(quietListener.changes(), 3);
    QCoreApplication::processEvents();
    QCOMPARE(quietListener.changes(), 4);
    QCOMPARE(quiet->figures().jitterMs, 3);
    QCOMPARE(quiet->figures().delay5Ms, 2); // of what was measured since
    m_engine->network().setFigures({100, -1, 0, 4, 0});
    QTRY_COMPARE(quietListener.changes(), 5);
    QCOMPARE(quiet->figures().delay95Ms, -1);
}

QTEST_MAIN(tst_ScriptedNetworkProbe)
#include "tst_ScriptedNetworkProbe.moc"
