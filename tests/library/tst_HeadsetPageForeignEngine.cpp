// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/HeadsetPage.h"

#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/PageTools.h"

#include <LumMedia/AudioPlayer.h>

#include <QLabel>
#include <QPushButton>
#include <QVector>
#include <QtTest>

namespace {

bool s_makesPlayers = false;
QVector<AudioPlayer*> s_created;
QVector<AudioPlayer*> s_deleted;

} // namespace

// An engine with worse manners than the bundled one: these take the place of its functions.
AudioPlayer* CreateAudioPlayer(AudioPlayerType /*type*/, QString path, float volume, char* /*data*/,
                               int /*size*/, bool /*loop*/, bool /*fadeIn*/)
{
    s_created.append(s_makesPlayers ? new AudioPlayer(path, volume) : nullptr);
    return s_created.last();
}

// Takes its time: the player lives on and may still speak.
int DeleleAudioPlayer(AudioPlayer* player)
{
    s_deleted.append(player);
    return 0;
}

class tst_HeadsetPageForeignEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void withoutPlayerPlayingFinishesAtOnce();
    void playerIsDeletedOnceAndNotHeardAgain();

private:
    std::unique_ptr<HeadsetPage> m_page;
    QPushButton* m_play = nullptr;
};

void tst_HeadsetPageForeignEngine::init()
{
    s_created.clear();
    s_deleted.clear();
    auto& engine = Platform::ScriptedEngine::install();
    engine.scriptedSpeakers().plug({"a", "Some Speaker"}, Platform::DeviceState::Working);
    m_page = std::make_unique<HeadsetPage>();
    m_page->show();
    m_play = childOf<QPushButton>(*m_page, "tb_play_test_sound");
}

void tst_HeadsetPageForeignEngine::cleanup()
{
    m_page.reset();
    Platform::EngineRegistry::uninstall();
}

void tst_HeadsetPageForeignEngine::withoutPlayerPlayingFinishesAtOnce()
{
    s_makesPlayers = false;
    for (int i = 1; i <= 2; ++i) {
        QTest::mouseClick(m_play, Qt::LeftButton);
        QCOMPARE(s_created.size(), i);
        QVERIFY(m_play->isEnabled());
        QCOMPARE(childOf<QLabel>(*m_page, "label_Play")->text(),
                 QString("ID_HeadsetPage_PlayAgain"));
        QVERIFY(childOf<QPushButton>(*m_page, "Btn_CantListen")->isEnabled());
        QVERIFY(!childOf<QPushButton>(*m_page, "Btn_CanHear")->isEnabled());
    }
    m_page->hide();
    QVERIFY(s_deleted.isEmpty());
}

void tst_HeadsetPageForeignEngine::playerIsDeletedOnceAndNotHeardAgain()
{
    s_makesPlayers = true;
    QTest::mouseClick(m_play, Qt::LeftButton);
    AudioPlayer* first = s_created.last();
    Q_EMIT first->playFileFinished();
    QCOMPARE(s_deleted, QVector<AudioPlayer*>{first});
    Q_EMIT first->playFileFinished(); // twice
    QTest::mouseClick(m_play, Qt::LeftButton);
    Q_EMIT first->playFileFinished(); // while the next one plays
    QVERIFY(!m_play->isEnabled());
    m_page->hide();
    QCOMPARE(s_deleted, s_created);
    Q_EMIT s_created.last()->playFileFinished(); // after the page is hidden
    QCOMPARE(s_deleted, s_created);
    QCOMPARE(childOf<QLabel>(*m_page, "label_Play")->text(), QString("ID_HeadsetPage_Play"));
}

QTEST_MAIN(tst_HeadsetPageForeignEngine)
#include "tst_HeadsetPageForeignEngine.moc"
