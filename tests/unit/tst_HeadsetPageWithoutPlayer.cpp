// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/HeadsetPage.h"

#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/PageTools.h"

#include <LumMedia/AudioPlayer.h>

#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace {

int s_created = 0;
int s_deleted = 0;

} // namespace

// An engine that can't make a player; these take the place of the bundled one's.
AudioPlayer* CreateAudioPlayer(AudioPlayerType /*type*/, QString /*path*/, float /*volume*/,
                               char* /*data*/, int /*size*/, bool /*loop*/, bool /*fadeIn*/)
{
    ++s_created;
    return nullptr;
}

int DeleleAudioPlayer(AudioPlayer* /*player*/)
{
    ++s_deleted;
    return -1;
}

class tst_HeadsetPageWithoutPlayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void playingFinishesAtOnce();
};

void tst_HeadsetPageWithoutPlayer::playingFinishesAtOnce()
{
    auto& engine = Platform::ScriptedEngine::install();
    engine.scriptedSpeakers().plug({"a", "Some Speaker"}, Platform::DeviceState::Working);
    {
        HeadsetPage page;
        page.show();
        auto* play = childOf<QPushButton>(page, "tb_play_test_sound");
        for (int i = 1; i <= 2; ++i) {
            QTest::mouseClick(play, Qt::LeftButton);
            QCOMPARE(s_created, i);
            QVERIFY(play->isEnabled());
            QCOMPARE(childOf<QLabel>(page, "label_Play")->text(),
                     QString("ID_HeadsetPage_PlayAgain"));
            QVERIFY(childOf<QPushButton>(page, "Btn_CantListen")->isEnabled());
            QVERIFY(!childOf<QPushButton>(page, "Btn_CanHear")->isEnabled());
        }
        page.hide();
    }
    QCOMPARE(s_deleted, 0);
    Platform::EngineRegistry::uninstall();
}

QTEST_MAIN(tst_HeadsetPageWithoutPlayer)
#include "tst_HeadsetPageWithoutPlayer.moc"
