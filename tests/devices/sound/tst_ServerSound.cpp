// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/ServerSound.h"

#include "platform/devices/sound/SoundBuffer.h"
#include "tests/devices/sound/ImaginedServer.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/NoListener.h"

#include <QtTest>

using namespace Platform;
using TestSupport::ImaginedServer;

namespace {

SoundDevice device(const char* id, double percent)
{
    SoundDevice result;
    result.id = QString::fromLatin1(id);
    result.name = result.id;
    result.volume.percent = percent;
    result.isAdjustable = true;
    return result;
}

SoundDevices twoOfEach()
{
    SoundDevices devices;
    devices.isConnected = true;
    devices.server = SoundServerState::Running;
    devices.speakers.devices = {device("speaker_a", 40), device("speaker_b", 50)};
    devices.speakers.defaultId = QStringLiteral("speaker_b");
    devices.microphones.devices = {device("microphone_a", 60), device("microphone_b", 100)};
    devices.microphones.defaultId = QStringLiteral("microphone_b");
    return devices;
}

} // namespace

// What microphones, speakers and players do with any sound server.
class tst_ServerSound : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void defaultsAreTheCurrentDevices();
    void volumesEndWhereTheServerSays();
    void microphoneSaysWhyItFailed_data();
    void microphoneSaysWhyItFailed();
    void speakerSaysWhyItFailed();
    void failureEndsWithTheNextGoodPlayback();
    void acousticLoopSaysWhyItFailed();

private:
    void playUntil(const std::optional<DeviceState>& failure);

    TestSupport::MemoryReport m_report;
    TestSupport::NoListener m_listener;
    std::unique_ptr<TestSupport::ImaginedSound> m_sound;
    ImaginedServer* m_server = nullptr;
    std::unique_ptr<SpeakerBackend> m_speaker;
    std::unique_ptr<MicrophoneBackend> m_microphone;
};

void tst_ServerSound::init()
{
    m_sound = std::make_unique<TestSupport::ImaginedSound>(m_report);
    m_server = m_sound->server.get();
    m_speaker = m_sound->createSpeaker(m_listener);
    m_microphone = m_sound->createMicrophone(m_listener);
    m_server->has(twoOfEach());
    QTRY_VERIFY(!m_microphone->currentId().isEmpty());
}

void tst_ServerSound::cleanup()
{
    m_microphone.reset();
    m_speaker.reset();
    m_sound.reset();
}

void tst_ServerSound::defaultsAreTheCurrentDevices()
{
    QCOMPARE(m_speaker->currentId(), QStringLiteral("speaker_b"));
    QCOMPARE(m_speaker->volume(), 50);
    QCOMPARE(m_microphone->currentId(), QStringLiteral("microphone_b"));
    m_microphone->open();
    QCOMPARE(m_server->openedMicrophone, QStringLiteral("microphone_b"));
    m_microphone->setListening(true);
    QCOMPARE(m_server->listeningOn, QStringLiteral("speaker_b"));
    m_microphone->close();
    QVERIFY(m_server->openedMicrophone.isEmpty());
    QVERIFY(m_server->listeningOn.isEmpty());
}

void tst_ServerSound::volumesEndWhereTheServerSays()
{
    QCOMPARE(m_microphone->volume(), ImaginedServer::MaximumVolume); // it is at 100
    m_microphone->setVolume(150);
    m_speaker->setVolume(100);
    QCOMPARE(m_server->orders.size(), std::size_t{2});
    for (const ImaginedServer::VolumeOrder& order : m_server->orders) {
        QCOMPARE(order.percent, ImaginedServer::MaximumVolume);
    }
    QVERIFY(m_server->orders.front().kind == SoundKind::Microphone);
    QVERIFY(m_server->orders.front().number < m_server->orders.back().number);
}

void tst_ServerSound::microphoneSaysWhyItFailed_data()
{
    QTest::addColumn<DeviceState>("reason");
    for (const DeviceState reason : {DeviceState::Failed, DeviceState::Denied, DeviceState::Busy}) {
        QTest::newRow(qPrintable(toString(reason))) << reason;
    }
}

void tst_ServerSound::microphoneSaysWhyItFailed()
{
    QFETCH(const DeviceState, reason);
    m_microphone->open();
    m_server->capture.failed(reason);
    QTRY_VERIFY(m_microphone->state() == reason);
    m_microphone->close();
    QCOMPARE(m_report.measurements[QStringLiteral("microphone")].value(QLatin1String("state")),
             QJsonValue(toString(reason)));
}

void tst_ServerSound::playUntil(const std::optional<DeviceState>& failure)
{
    const std::unique_ptr<PlayerBackend> player = m_sound->createPlayer(
        QStringLiteral(ENVCHECK_SOURCE_DIR "/share/sounds/Bubble.mp3"), 1.0F, m_listener);
    QCOMPARE(m_server->playingOn, QStringLiteral("speaker_b"));
    QTRY_VERIFY(m_server->sound->hasEnded());
    m_server->playbackFinished(failure);
    QTRY_VERIFY(m_server->speakerFailure() == failure);
}

void tst_ServerSound::speakerSaysWhyItFailed()
{
    playUntil(DeviceState::Busy);
    QVERIFY(m_speaker->state() == DeviceState::Busy);
    playUntil(DeviceState::Denied);
    QVERIFY(m_speaker->state() == DeviceState::Denied);
    m_speaker->setCurrent(QStringLiteral("speaker_a"));
    QTRY_COMPARE(m_speaker->currentId(), QStringLiteral("speaker_a"));
    QVERIFY(m_speaker->state() == DeviceState::Ready);
}

void tst_ServerSound::failureEndsWithTheNextGoodPlayback()
{
    playUntil(DeviceState::Failed);
    playUntil(std::nullopt);
    QVERIFY(m_speaker->state() == DeviceState::Ready);
}

void tst_ServerSound::acousticLoopSaysWhyItFailed()
{
    const std::unique_ptr<AcousticLoop> loop =
        m_sound->createAcousticLoop(QStringLiteral("speaker_a"), QStringLiteral("microphone_a"));
    QCOMPARE(m_server->openedMicrophone, QStringLiteral("microphone_a"));
    m_server->capture.failed(DeviceState::Denied);
    QTRY_VERIFY(loop->outcome());
    QCOMPARE(loop->outcome()->reason, QStringLiteral("denied"));
}

QTEST_GUILESS_MAIN(tst_ServerSound)
#include "tst_ServerSound.moc"
