// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/platform/scripted/ScriptedTest.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Platform;

namespace {

const QString First = QStringLiteral("first");

class PlayerListener : public PlayerBackend::Listener
{
public:
    void playbackFinished() override { ++m_finished; }
    int finished() const { return m_finished; }

private:
    int m_finished = 0;
};

} // namespace

class tst_ScriptedPlayer : public TestSupport::ScriptedTest
{
    Q_OBJECT

private Q_SLOTS:
    void playsSoundsAsLongAsTheyAre();
    void endsSoundsEarly();
};

void tst_ScriptedPlayer::playsSoundsAsLongAsTheyAre()
{
    m_engine->scriptedSpeakers().plug({First, QStringLiteral("A")});
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Sound.mp3"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(4800, 'x')); // 200 ms at 192 kbit/s
    file.close();

    PlayerListener listener;
    QElapsedTimer clock;
    clock.start();
    const auto player = m_engine->createPlayer(path, 1.0F, listener);
    QTRY_COMPARE(listener.finished(), 1);
    QVERIFY2(clock.elapsed() >= 180 && clock.elapsed() < 500,
             qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(m_engine->scriptedSpeakers().playedFiles(), QStringList{path});

    m_engine->scriptedSpeakers().setSoundLength(QStringLiteral("Sound.mp3"), 0);
    PlayerListener shortListener;
    const auto shortPlayer = m_engine->createPlayer(path, 1.0F, shortListener);
    QCOMPARE(shortListener.finished(), 0); // from the event loop
    QTRY_COMPARE(shortListener.finished(), 1);
    m_engine->scriptedSpeakers().finishPlayback();
    QCoreApplication::processEvents();
    QCOMPARE(listener.finished(), 1); // once is all
    QCOMPARE(shortListener.finished(), 1);
}

void tst_ScriptedPlayer::endsSoundsEarly()
{
    ScriptedSpeakers& speakers = m_engine->scriptedSpeakers();
    const QString path = QStringLiteral("/nowhere/Sound.mp3");
    PlayerListener deviceless;
    const auto withoutSpeaker = m_engine->createPlayer(path, 1.0F, deviceless);
    QTRY_COMPARE(deviceless.finished(), 1);

    speakers.plug({First, QStringLiteral("A")});
    PlayerListener missing;
    const auto withoutFile = m_engine->createPlayer(path, 1.0F, missing);
    QTRY_COMPARE(missing.finished(), 1);

    speakers.setSoundLength(QStringLiteral("Sound.mp3"), 60000);
    PlayerListener steered;
    const auto player = m_engine->createPlayer(path, 1.0F, steered);
    QCoreApplication::processEvents();
    QCOMPARE(steered.finished(), 0);
    speakers.finishPlayback();
    QCOMPARE(steered.finished(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(steered.finished(), 1);

    PlayerListener unplugged;
    const auto cutOff = m_engine->createPlayer(path, 1.0F, unplugged);
    speakers.unplug(First);
    QTRY_COMPARE(unplugged.finished(), 1);

    speakers.setPlayerFails(true);
    QVERIFY(!m_engine->createPlayer(path, 1.0F, unplugged));
}

QTEST_MAIN(tst_ScriptedPlayer)
#include "tst_ScriptedPlayer.moc"
