// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/HeadsetPage.h"

#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/PageTools.h"

#include <LumMedia/AudioPlayer.h>

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVector>
#include <QtTest>

#include <new>

// What an engine does with its players.
enum class Keeps { Nothing, UntilTheLoop, ForAWhile, Pool, Place };
// What becomes of the page after playing.
enum class Then { Hide, Finish, Destroy };

Q_DECLARE_METATYPE(Keeps)
Q_DECLARE_METATYPE(Then)

namespace {

constexpr int AWhileMs = 20;

Keeps s_keeps = Keeps::Nothing;
bool s_makesPlayers = true;
bool s_speaksWhenDeleted = false;
QVector<QPointer<AudioPlayer>> s_created; // in the order of the calls, null where none was made
QVector<AudioPlayer*> s_handedOut;        // the same, and not cleared by an end
QVector<AudioPlayer*> s_deleted;
QVector<int> s_listeners; // of each deleted one
QPointer<AudioPlayer> s_pooled;
alignas(AudioPlayer) unsigned char s_place[sizeof(AudioPlayer)];

} // namespace

// An engine of another make: these take the place of the bundled one's functions.
class AudioPlayer::Bridge
{
};

AudioPlayer::AudioPlayer(const QString& /*path*/, float /*volume*/)
{
}

AudioPlayer::~AudioPlayer() = default;

AudioPlayer* CreateAudioPlayer(AudioPlayerType /*type*/, QString path, float volume, char* /*data*/,
                               int /*size*/, bool /*loop*/, bool /*fadeIn*/)
{
    AudioPlayer* player = nullptr;
    if (s_makesPlayers) {
        switch (s_keeps) {
        case Keeps::Pool:
            player = s_pooled ? s_pooled.data() : new AudioPlayer(path, volume);
            s_pooled = player;
            break;
        case Keeps::Place: // neither on the heap nor ever freed by itself
            player = new (s_place) AudioPlayer(path, volume);
            break;
        default:
            player = new AudioPlayer(path, volume);
        }
    }
    s_created.append(player);
    s_handedOut.append(player);
    return player;
}

int DeleleAudioPlayer(AudioPlayer* player)
{
    s_deleted.append(player);
    s_listeners.append(player->receivers(SIGNAL(playFileFinished())));
    if (s_speaksWhenDeleted) {
        Q_EMIT player->playFileFinished();
    }
    switch (s_keeps) {
    case Keeps::Nothing:
        delete player;
        break;
    case Keeps::UntilTheLoop:
        player->deleteLater();
        break;
    case Keeps::ForAWhile:
        QTimer::singleShot(AWhileMs, player, [player] { delete player; });
        break;
    case Keeps::Pool:
        break;
    case Keeps::Place:
        player->~AudioPlayer();
        break;
    }
    return 0;
}

class tst_HeadsetPageForeignEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void playersAreTheEngines_data();
    void playersAreTheEngines();
    void missingPlayerIsNotDetected();
    void lateEndIsTakenAsTheLatestPlayers();
    void endSaidTwiceDeletesOnce();
    void endSaidAfterHiding();
    void endSaidFromWithinTheDeletion_data();
    void endSaidFromWithinTheDeletion();
    void pooledPlayerIsConnectedOnce();

private:
    void play() { QTest::mouseClick(m_play, Qt::LeftButton); }
    void checkLabel(const char* text)
    {
        QCOMPARE(childOf<QLabel>(*m_page, "label_Play")->text(), QString(text));
    }
    void checkPlaying()
    {
        QVERIFY(!m_play->isEnabled());
        checkLabel("ID_HeadsetPage_Playing");
    }
    void checkFinished()
    {
        QVERIFY(m_play->isEnabled());
        checkLabel("ID_HeadsetPage_PlayAgain");
    }

    std::unique_ptr<HeadsetPage> m_page;
    QPushButton* m_play = nullptr;
};

void tst_HeadsetPageForeignEngine::init()
{
    s_keeps = Keeps::ForAWhile;
    s_makesPlayers = true;
    s_speaksWhenDeleted = false;
    s_created.clear();
    s_handedOut.clear();
    s_deleted.clear();
    s_listeners.clear();
    auto& engine = Platform::ScriptedEngine::install();
    engine.scriptedSpeakers().plug({"a", "Some Speaker"}, Platform::DeviceState::Working);
    m_page = std::make_unique<HeadsetPage>();
    m_page->show();
    m_play = childOf<QPushButton>(*m_page, "tb_play_test_sound");
}

void tst_HeadsetPageForeignEngine::cleanup()
{
    m_page.reset();
    delete s_pooled;
    const auto isNoneLeft = [] {
        return std::all_of(s_created.begin(), s_created.end(),
                           [](const QPointer<AudioPlayer>& player) { return player.isNull(); });
    };
    QTRY_VERIFY(isNoneLeft());
    Platform::EngineRegistry::uninstall();
}

void tst_HeadsetPageForeignEngine::playersAreTheEngines_data()
{
    QTest::addColumn<Keeps>("keeps");
    QTest::addColumn<Then>("then");
    for (const auto& [keeps, keepsName] :
         {std::pair(Keeps::Nothing, "freed at once"), std::pair(Keeps::UntilTheLoop, "deleteLater"),
          std::pair(Keeps::ForAWhile, "freed later"), std::pair(Keeps::Pool, "pooled"),
          std::pair(Keeps::Place, "not on the heap")}) {
        for (const auto& [then, thenName] :
             {std::pair(Then::Hide, "page hidden"), std::pair(Then::Finish, "sound finished"),
              std::pair(Then::Destroy, "page destroyed")}) {
            QTest::addRow("%s, %s", keepsName, thenName) << keeps << then;
        }
    }
}

void tst_HeadsetPageForeignEngine::playersAreTheEngines()
{
    QFETCH(Keeps, keeps);
    QFETCH(Then, then);
    s_keeps = keeps;
    for (int i = 1; i <= 2; ++i) {
        play();
        AudioPlayer* player = s_created.last();
        QCOMPARE(s_created.size(), i);
        QVERIFY(!player->parent());
        if (then == Then::Finish) {
            Q_EMIT player->playFileFinished();
            checkFinished();
        } else if (then == Then::Hide) {
            m_page->hide();
            m_page->show();
        } else {
            break;
        }
    }
    m_page.reset();
    if (then != Then::Destroy) {
        QCOMPARE(s_deleted, s_handedOut);
    } else { // is nobody's but the engine's
        QVERIFY(s_deleted.isEmpty());
        QVERIFY(s_created.last());
        Q_EMIT s_created.last()->playFileFinished();
        QVERIFY(s_deleted.isEmpty());
        DeleleAudioPlayer(s_created.last());
    }
}

void tst_HeadsetPageForeignEngine::missingPlayerIsNotDetected()
{
    s_makesPlayers = false;
    play();
    QCOMPARE(s_created.size(), 1);
    checkPlaying();
    QVERIFY(childOf<QAbstractButton>(*m_page, "item0")->isEnabled());
    QVERIFY(!childOf<QPushButton>(*m_page, "Btn_CantListen")->isEnabled());
    QVERIFY(!childOf<QPushButton>(*m_page, "Btn_CanHear")->isEnabled());
    QCoreApplication::processEvents();
    checkPlaying();
    m_page->hide();
    QVERIFY(m_play->isEnabled());
    checkLabel("ID_HeadsetPage_Play");
    QVERIFY(s_deleted.isEmpty());

    s_makesPlayers = true;
    m_page->show();
    play();
    Q_EMIT s_created.last()->playFileFinished();
    checkFinished();
    QCOMPARE(s_deleted, QVector<AudioPlayer*>{s_handedOut.last()});
}

// Who speaks isn't asked: an engine that has done with a player keeps it silent.
void tst_HeadsetPageForeignEngine::lateEndIsTakenAsTheLatestPlayers()
{
    play();
    const QPointer<AudioPlayer> first = s_created.last();
    Q_EMIT first->playFileFinished();
    play();
    checkPlaying();
    Q_EMIT first->playFileFinished();
    checkFinished();
    QCOMPARE(s_deleted, s_handedOut);
}

void tst_HeadsetPageForeignEngine::endSaidTwiceDeletesOnce()
{
    play();
    const QPointer<AudioPlayer> player = s_created.last();
    Q_EMIT player->playFileFinished();
    Q_EMIT player->playFileFinished();
    checkFinished();
    QCOMPARE(s_deleted, s_handedOut);
}

void tst_HeadsetPageForeignEngine::endSaidAfterHiding()
{
    play();
    const QPointer<AudioPlayer> player = s_created.last();
    m_page->hide();
    Q_EMIT player->playFileFinished();
    checkFinished();
    QCOMPARE(s_deleted, s_handedOut);
    m_page->show();
    play();
    checkPlaying();
    m_page->hide();
}

void tst_HeadsetPageForeignEngine::endSaidFromWithinTheDeletion_data()
{
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("sound finished") << false;
    QTest::newRow("page hidden") << true;
}

void tst_HeadsetPageForeignEngine::endSaidFromWithinTheDeletion()
{
    QFETCH(bool, isHidden);
    s_speaksWhenDeleted = true;
    play();
    if (isHidden) {
        m_page->hide();
        QVERIFY(m_play->isEnabled());
        checkLabel("ID_HeadsetPage_Play");
        QVERIFY(!childOf<QPushButton>(*m_page, "Btn_CantListen")->isEnabled());
    } else {
        Q_EMIT s_created.last()->playFileFinished();
        checkFinished();
    }
    QCOMPARE(s_deleted, s_handedOut);
}

void tst_HeadsetPageForeignEngine::pooledPlayerIsConnectedOnce()
{
    s_keeps = Keeps::Pool;
    for (int i = 0; i < 3; ++i) {
        play();
        Q_EMIT s_created.last()->playFileFinished();
        checkFinished();
    }
    QCOMPARE(s_deleted, s_handedOut);
    QCOMPARE(s_listeners, (QVector<int>{1, 1, 1}));
}

QTEST_MAIN(tst_HeadsetPageForeignEngine)
#include "tst_HeadsetPageForeignEngine.moc"
