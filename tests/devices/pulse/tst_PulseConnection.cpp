// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseSound.h"
#include "tests/devices/pulse/UnwillingPulse.h"
#include "tests/support/DeviceTexts.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/NoListener.h"
#include "tests/support/SoundServerTest.h"

#include <QTest>

using namespace Platform;
using namespace TestSupport;
using UnwillingPulse::Fault;

Q_DECLARE_METATYPE(TestSupport::UnwillingPulse::Fault)

namespace {

constexpr int TimeoutMs = 10000; // longer than a round may take
constexpr int CallsOfARound = 4;

// Keeps the lengths of the lists that were announced.
class Watcher final : public NoListener
{
public:
    void speakerListChanged() override
    {
        const auto speakers = static_cast<int>(sound->speakers().size());
        shortest = longest == 0 ? speakers : std::min(shortest, speakers);
        longest = std::max(longest, speakers);
    }

    PulseSound* sound = nullptr;
    int shortest = 0; // since the first one
    int longest = 0;
};

} // namespace

// One call to libpulse fails, at any place. Lists are complete anyway, and stay so.
class tst_PulseConnection : public SoundServerTest
{
    Q_OBJECT

private Q_SLOTS:
    void listsInSpiteOf_data();
    void listsInSpiteOf();
    void keepsTheListInSpiteOf_data() { addFaults(); }
    void keepsTheListInSpiteOf();

private:
    static void addFaults();
};

void tst_PulseConnection::addFaults()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<int>("callsBefore");
    for (int calls = 0; calls < CallsOfARound; ++calls) {
        QTest::addRow("no operation, call %d", calls) << Fault::NoOperation << calls;
        QTest::addRow("bad reply, call %d", calls) << Fault::BadReply << calls;
    }
    QTest::addRow("no reply") << Fault::NoReply << 2;
}

void tst_PulseConnection::listsInSpiteOf_data()
{
    addFaults();
    QTest::addRow("no context") << Fault::NoContext << 0;
}

void tst_PulseConnection::listsInSpiteOf()
{
    QFETCH(Fault, fault);
    QFETCH(int, callsBefore);
    UnwillingPulse::arm(fault, callsBefore);
    Watcher watcher;
    MemoryReport report;
    PulseSound sound(report);
    watcher.sound = &sound;
    const auto speaker = sound.createSpeaker(watcher);
    const auto microphone = sound.createMicrophone(watcher);
    QTRY_COMPARE_WITH_TIMEOUT(sound.speakers().size(), std::size_t{3}, TimeoutMs);
    QVERIFY(UnwillingPulse::hasStruck());
    QCOMPARE(speaker->currentId(), id("speaker_a"));
    QCOMPARE(idsOf(microphone->devices()), QStringList(id("microphone_a")));

    // Later changes are heard of, too.
    m_server->unplug(m_server->speakerB());
    QTRY_COMPARE_WITH_TIMEOUT(sound.speakers().size(), std::size_t{2}, TimeoutMs);
}

void tst_PulseConnection::keepsTheListInSpiteOf()
{
    QFETCH(Fault, fault);
    QFETCH(int, callsBefore);
    Watcher watcher;
    MemoryReport report;
    PulseSound sound(report);
    watcher.sound = &sound;
    const auto speaker = sound.createSpeaker(watcher);
    QTRY_COMPARE_WITH_TIMEOUT(watcher.longest, 3, TimeoutMs);
    UnwillingPulse::arm(fault, callsBefore);
    QVERIFY(!m_server->plugSpeaker(id("speaker_c"), id("Test Speaker C")).isEmpty());
    QVERIFY(!m_server->plugSpeaker(id("speaker_d"), id("Test Speaker D")).isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(sound.speakers().size(), std::size_t{5}, TimeoutMs);
    QTRY_VERIFY_WITH_TIMEOUT(UnwillingPulse::hasStruck(), TimeoutMs);
    QCOMPARE(watcher.shortest, 3);
}

QTEST_GUILESS_MAIN(tst_PulseConnection)
#include "tst_PulseConnection.moc"
