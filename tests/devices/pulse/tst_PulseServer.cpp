// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseServer.h"
#include "tests/devices/SoundTest.h"

#include <QTest>

using namespace Platform;

// What the sessions share, on a real server.
class tst_PulseServer : public TestSupport::SoundTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SoundTest::init(); }
    void cleanup() { SoundTest::cleanup(); }

    void failureLastsAsLongAsTheSpeakerIsThere()
    {
        PulseServer server;
        const auto has = [&server](const QString& speaker) {
            return server.devices().speakers.find(speaker) != nullptr;
        };
        server.chooseSpeaker(id("speaker_b"));
        QTRY_COMPARE_WITH_TIMEOUT(server.speakerId(), id("speaker_b"), TimeoutMs);
        server.setSpeakerFailed(id("speaker_b"), true);
        QVERIFY(server.hasSpeakerFailed());

        m_server->plugSpeaker(id("late"), id("Late"));
        QTRY_VERIFY_WITH_TIMEOUT(has(id("late")), TimeoutMs);
        QVERIFY(server.hasSpeakerFailed());

        m_server->unplug(m_server->speakerB());
        QTRY_VERIFY_WITH_TIMEOUT(!has(id("speaker_b")), TimeoutMs);
        m_server->plugSpeaker(id("speaker_b"), id("Repaired"));
        QTRY_COMPARE_WITH_TIMEOUT(server.speakerId(), id("speaker_b"), TimeoutMs);
        QVERIFY(!server.hasSpeakerFailed());
    }
};

QTEST_GUILESS_MAIN(tst_PulseServer)
#include "tst_PulseServer.moc"
