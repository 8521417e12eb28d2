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
        server.setSpeakerFailure(id("speaker_b"), DeviceState::Failed);
        QVERIFY(server.speakerFailure());

        m_server->plugSpeaker(id("late"), id("Late"));
        QTRY_VERIFY_WITH_TIMEOUT(has(id("late")), TimeoutMs);
        QVERIFY(server.speakerFailure());

        m_server->unplug(m_server->speakerB());
        QTRY_VERIFY_WITH_TIMEOUT(!has(id("speaker_b")), TimeoutMs);
        m_server->plugSpeaker(id("speaker_b"), id("Repaired"));
        QTRY_COMPARE_WITH_TIMEOUT(server.speakerId(), id("speaker_b"), TimeoutMs);
        QVERIFY(!server.speakerFailure());
    }

    void orderForAnAbsentSpeakerIsSettledToo()
    {
        PulseServer server;
        const auto speakers = [&server] { return server.devices().speakers; };
        const auto isSettled = [&speakers](quint64 order) {
            return speakers().settledOrder >= order;
        };
        QTRY_VERIFY_WITH_TIMEOUT(speakers().find(id("speaker_b")), TimeoutMs);
        const quint64 absent = server.setVolume(SoundKind::Speaker, id("gone"), 70);
        QTRY_VERIFY_WITH_TIMEOUT(isSettled(absent), TimeoutMs);
        const quint64 present = server.setVolume(SoundKind::Speaker, id("speaker_b"), 30);
        QTRY_VERIFY_WITH_TIMEOUT(isSettled(present), TimeoutMs);
        QCOMPARE(qRound(speakers().find(id("speaker_b"))->volume.percent), 30);
    }
};

QTEST_GUILESS_MAIN(tst_PulseServer)
#include "tst_PulseServer.moc"
