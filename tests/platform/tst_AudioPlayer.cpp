// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"

#include <CommEngine/LumSpeaker.h>
#include <LumMedia/AudioPlayer.h>

#include <QPointer>
#include <QtTest>

// Whose the sounds are, and when they end.
class tst_AudioPlayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void endsWithItsSpeakerWithoutASignal();
    void belongsToTheNewestSpeaker();
    void lateDeletionIsNotWaitedFor();
    void speakerMayEndInsideTheSignal();
    void refusedPlayerEndsWithItsSpeaker();
    void withoutASpeakerItLivesUntilDeleted();

private:
    QPointer<AudioPlayer> play()
    {
        return CreateAudioPlayer(AudioPlayerType(3), "Piano.mp3", 1.0F, nullptr, 0, false, false);
    }
    Platform::ScriptedSpeakers& speakers() { return m_engine->scriptedSpeakers(); }

    Platform::ScriptedEngine* m_engine = nullptr;
};

void tst_AudioPlayer::init()
{
    constexpr int LongSoundMs = 60 * 1000;
    m_engine = &Platform::ScriptedEngine::install();
    speakers().plug({"a", "Some Speaker"}, Platform::DeviceState::Working);
    speakers().setSoundLength("Piano.mp3", LongSoundMs);
}

void tst_AudioPlayer::cleanup()
{
    QCOMPARE(m_engine->livingSessions(), 0);
    Platform::EngineRegistry::uninstall();
}

void tst_AudioPlayer::endsWithItsSpeakerWithoutASignal()
{
    auto speaker = std::make_unique<LumSpeaker>();
    const QPointer<AudioPlayer> one = play();
    const QPointer<AudioPlayer> other = play();
    QSignalSpy finished(one, &AudioPlayer::playFileFinished);
    speakers().finishPlayback(); // under way
    speaker.reset();
    QVERIFY(!one);
    QVERIFY(!other);
    QCOMPARE(m_engine->livingSessions(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(finished.count(), 0);
}

void tst_AudioPlayer::belongsToTheNewestSpeaker()
{
    auto outer = std::make_unique<LumSpeaker>();
    const QPointer<AudioPlayer> ofOuter = play();
    auto inner = std::make_unique<LumSpeaker>();
    const QPointer<AudioPlayer> ofInner = play();
    inner.reset();
    QVERIFY(!ofInner);
    QVERIFY(ofOuter);
    const QPointer<AudioPlayer> next = play();
    outer.reset();
    QVERIFY(!ofOuter);
    QVERIFY(!next);
}

// The event loop may have ended for good.
void tst_AudioPlayer::lateDeletionIsNotWaitedFor()
{
    auto speaker = std::make_unique<LumSpeaker>();
    const QPointer<AudioPlayer> player = play();
    QCOMPARE(DeleleAudioPlayer(player), 0);
    QCOMPARE(m_engine->livingSessions(), 1); // silent at once
    QVERIFY(player);
    speaker.reset();
    QVERIFY(!player);
}

void tst_AudioPlayer::speakerMayEndInsideTheSignal()
{
    auto speaker = std::make_unique<LumSpeaker>();
    const QPointer<AudioPlayer> player = play();
    connect(player, &AudioPlayer::playFileFinished, this, [&speaker] { speaker.reset(); });
    speakers().finishPlayback();
    QTRY_VERIFY(!speaker);
    QTRY_VERIFY(!player);
}

void tst_AudioPlayer::refusedPlayerEndsWithItsSpeaker()
{
    speakers().setPlayerFails(true);
    auto speaker = std::make_unique<LumSpeaker>();
    const QPointer<AudioPlayer> player = play();
    speaker.reset();
    QVERIFY(!player);
    QCoreApplication::processEvents();
}

void tst_AudioPlayer::withoutASpeakerItLivesUntilDeleted()
{
    const QPointer<AudioPlayer> player = play();
    std::make_unique<LumSpeaker>().reset();
    QVERIFY(player);
    QCOMPARE(m_engine->livingSessions(), 1);
    DeleleAudioPlayer(player);
    QTRY_VERIFY(!player);
    QCOMPARE(DeleleAudioPlayer(nullptr), -1);
}

QTEST_GUILESS_MAIN(tst_AudioPlayer)
#include "tst_AudioPlayer.moc"
