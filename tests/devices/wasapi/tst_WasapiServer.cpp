// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiServer.h"

#include "platform/devices/wasapi/WasapiSound.h"
#include "platform/devices/windows/DriverThread.h"
#include "tests/devices/wasapi/StagedAudio.h"
#include "tests/support/GapMeter.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/NoListener.h"

#include <QElapsedTimer>
#include <QtTest>

// Must follow windows.h.
#include <audioclient.h>

using namespace Platform;

namespace {

constexpr int TimeoutMs = 5000;
constexpr int AtOnceMs = 1000;   // a notice, and the list after it
constexpr qint64 MaxGapMs = 500; // Wine and a busy machine included; it hangs for seconds
constexpr int NoticeMs = 400;    // much less than until the next look without any
constexpr int EndMs = 1000;

QString text(const char* latin)
{
    return QString::fromLatin1(latin);
}

class Listener final : public TestSupport::NoListener
{
public:
    virtual ~Listener() = default;

    void systemVolumeChanged(float percent) override { microphoneVolumes.append(qRound(percent)); }
    void speakerVolumeChanged(int percent) override { speakerVolumes.append(percent); }

    QList<int> microphoneVolumes;
    QList<int> speakerVolumes;
};

} // namespace

// Endpoints, defaults and volumes of Windows, on a staged enumerator.
class tst_WasapiServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void listsWhatIsThere();
    void defaultsAreThoseOfCalls();
    void listFollowsThePlugs();
    void chosenSpeakerIsKeptWhileItIsAway();
    void setsVolumes();
    void hearsOfVolumes();
    void muteCountsAsZero();
    void endpointWithoutVolumeIsNotAdjustable();
    void pluggedAgainHasItsVolumeAgain();
    void noticesAreHeardAtOnce();
    void manyChangesMakeFewLists();
    void lostServiceComesBack();
    void streamSaysWhyItFailed_data();
    void streamSaysWhyItFailed();
    void hangingSystemHoldsNobodyUp();
    void hangingThreadsAreFew();

private:
    void startSound();
    std::vector<QString> names(const DeviceList& list) const;
    bool hasSpeaker(const char* id) const
    {
        return !nameIn(m_sound->speakers(), text(id)).isEmpty();
    }

    std::unique_ptr<TestSupport::StagedAudio> m_audio;
    TestSupport::MemoryReport m_report;
    Listener m_listener;
    std::unique_ptr<WasapiSound> m_sound;
    std::unique_ptr<SpeakerBackend> m_speaker;
    std::unique_ptr<MicrophoneBackend> m_microphone;
};

void tst_WasapiServer::init()
{
    m_audio = std::make_unique<TestSupport::StagedAudio>();
    m_audio->plug(SoundKind::Speaker, text("speaker_a"), text("Speakers"));
    m_audio->plug(SoundKind::Speaker, text("speaker_b"), text("Headset"));
    m_audio->plug(SoundKind::Microphone, text("microphone_a"), text("Microphone"));
    m_audio->plug(SoundKind::Microphone, text("microphone_b"), text("Headset"));
    m_audio->setDefault(SoundKind::Speaker, eConsole, text("speaker_a"));
    m_audio->setDefault(SoundKind::Speaker, eCommunications, text("speaker_b"));
    m_audio->setDefault(SoundKind::Microphone, eConsole, text("microphone_a"));
    m_audio->setDefault(SoundKind::Microphone, eCommunications, text("microphone_b"));
    m_audio->setVolume(text("speaker_b"), {40.0, false});
    m_audio->setVolume(text("microphone_b"), {60.0, false});
    startSound();
}

void tst_WasapiServer::startSound()
{
    m_report = {};
    m_listener.microphoneVolumes.clear();
    m_listener.speakerVolumes.clear();
    m_sound = std::make_unique<WasapiSound>(m_report);
    m_speaker = m_sound->createSpeaker(m_listener);
    m_microphone = m_sound->createMicrophone(m_listener);
    QVERIFY(m_sound->serverState() == SoundServerState::Starting);
    QTRY_COMPARE_WITH_TIMEOUT(m_microphone->currentId(), text("microphone_b"), TimeoutMs);
}

// Whatever happened, nothing of it stays.
void tst_WasapiServer::cleanup()
{
    m_microphone.reset();
    m_speaker.reset();
    m_sound.reset();
    m_audio->setHanging(false);
    QTRY_COMPARE_WITH_TIMEOUT(DriverThread::count(), 0, EndMs);
    QCOMPARE(m_audio->listeners(), 0);
    QCOMPARE(m_audio->objects(), 0);
    m_audio.reset();
}

std::vector<QString> tst_WasapiServer::names(const DeviceList& list) const
{
    std::vector<QString> result;
    for (const DeviceInfo& device : list) {
        result.push_back(device.name);
    }
    return result;
}

void tst_WasapiServer::listsWhatIsThere()
{
    QVERIFY(m_sound->serverState() == SoundServerState::Running);
    QCOMPARE(names(m_sound->speakers()), (std::vector{text("Speakers"), text("Headset")}));
    QCOMPARE(names(m_microphone->devices()), (std::vector{text("Microphone"), text("Headset")}));
    m_audio->plug(SoundKind::Speaker, text("speaker_c"), text("Headset"));
    m_audio->plug(SoundKind::Speaker, text("speaker_d"), QString());
    QTRY_VERIFY_WITH_TIMEOUT(hasSpeaker("speaker_d"), AtOnceMs);
    QCOMPARE(nameIn(m_sound->speakers(), text("speaker_c")), text("Headset (2)"));
    QCOMPARE(nameIn(m_sound->speakers(), text("speaker_d")), text("speaker_d"));
}

// People choose a headset for calls; without such a choice, the general default counts.
void tst_WasapiServer::defaultsAreThoseOfCalls()
{
    QCOMPARE(m_speaker->currentId(), text("speaker_b"));
    m_audio->setDefault(SoundKind::Speaker, eConsole, text("speaker_b"));
    m_audio->setDefault(SoundKind::Speaker, eCommunications, text("speaker_a"));
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->currentId(), text("speaker_a"), AtOnceMs);
    m_audio->setDefault(SoundKind::Speaker, eCommunications, QString());
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->currentId(), text("speaker_b"), AtOnceMs);
    m_audio->setDefault(SoundKind::Speaker, eConsole, QString());
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->currentId(), text("speaker_a"), AtOnceMs); // the first
}

void tst_WasapiServer::listFollowsThePlugs()
{
    m_audio->unplug(text("microphone_b"));
    QTRY_COMPARE_WITH_TIMEOUT(m_microphone->currentId(), text("microphone_a"), AtOnceMs);
    m_audio->unplug(text("microphone_a"));
    QTRY_VERIFY_WITH_TIMEOUT(m_microphone->devices().empty(), AtOnceMs);
    QVERIFY(m_microphone->state() == DeviceState::Absent);
    m_audio->plug(SoundKind::Microphone, text("microphone_b"), {});
    QTRY_COMPARE_WITH_TIMEOUT(m_microphone->currentId(), text("microphone_b"), AtOnceMs);
    QVERIFY(m_microphone->state() == DeviceState::Ready);
}

void tst_WasapiServer::chosenSpeakerIsKeptWhileItIsAway()
{
    m_speaker->setCurrent(text("speaker_a"));
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->currentId(), text("speaker_a"), AtOnceMs);
    m_audio->unplug(text("speaker_a"));
    QTRY_VERIFY_WITH_TIMEOUT(m_speaker->currentId().isEmpty(), AtOnceMs);
    m_audio->plug(SoundKind::Speaker, text("speaker_a"), {});
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->currentId(), text("speaker_a"), AtOnceMs);
}

void tst_WasapiServer::setsVolumes()
{
    m_audio->setVolume(text("speaker_b"), {40.0, true});
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->volume(), 0, AtOnceMs);
    m_listener.speakerVolumes.clear();
    m_speaker->setVolume(30);
    QCOMPARE(m_speaker->volume(), 30);
    m_microphone->setVolume(150);
    QCOMPARE(m_microphone->volume(), 100); // where Windows ends
    QTRY_COMPARE_WITH_TIMEOUT(qRound(m_audio->volumeOf(text("speaker_b")).percent), 30, AtOnceMs);
    QTRY_COMPARE_WITH_TIMEOUT(qRound(m_audio->volumeOf(text("microphone_b")).percent), 100,
                              AtOnceMs);
    QVERIFY(!m_audio->volumeOf(text("speaker_b")).isMuted);

    // What others do afterwards is told; what was done here isn't.
    m_audio->setVolume(text("speaker_b"), {20.0, false});
    m_audio->setVolume(text("microphone_b"), {70.0, false});
    QTRY_COMPARE_WITH_TIMEOUT(m_listener.speakerVolumes, QList<int>{20}, AtOnceMs);
    QTRY_COMPARE_WITH_TIMEOUT(m_listener.microphoneVolumes, QList<int>{70}, AtOnceMs);
}

void tst_WasapiServer::hearsOfVolumes()
{
    QCOMPARE(m_speaker->volume(), 40);
    QCOMPARE(m_microphone->volume(), 60);
    QVERIFY(m_microphone->isVolumeAdjustable());
    m_audio->setVolume(text("microphone_b"), {25.4, false});
    QTRY_COMPARE_WITH_TIMEOUT(m_microphone->volume(), 25, AtOnceMs);
    m_audio->setVolume(text("microphone_a"), {80.0, false}); // not the current one
    QTRY_COMPARE_WITH_TIMEOUT(m_microphone->volumeOf(text("microphone_a")), 80, AtOnceMs);
    QCOMPARE(m_listener.microphoneVolumes, QList<int>{25});
}

void tst_WasapiServer::muteCountsAsZero()
{
    m_audio->setVolume(text("speaker_b"), {40.0, true});
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->volume(), 0, AtOnceMs);
    m_audio->setVolume(text("speaker_b"), {40.0, false});
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->volume(), 40, AtOnceMs);
    QCOMPARE(m_listener.speakerVolumes, (QList<int>{0, 40}));
}

void tst_WasapiServer::endpointWithoutVolumeIsNotAdjustable()
{
    m_audio->plug(SoundKind::Microphone, text("plain"), text("Plain"));
    m_audio->takeVolumeAway(text("plain"));
    m_microphone->setCurrent(text("plain"));
    QTRY_COMPARE_WITH_TIMEOUT(m_microphone->currentName(), text("Plain"), AtOnceMs);
    QTRY_VERIFY_WITH_TIMEOUT(!m_microphone->isVolumeAdjustable(), 2 * AtOnceMs);
    QCOMPARE(m_microphone->volume(), 100);
    m_microphone->setVolume(10); // refused: the next list says what it is
    QTRY_COMPARE_WITH_TIMEOUT(m_microphone->volume(), 100, AtOnceMs);
}

// The volume of an endpoint that went is of no use when it comes again.
void tst_WasapiServer::pluggedAgainHasItsVolumeAgain()
{
    m_audio->unplug(text("speaker_b"));
    QTRY_VERIFY_WITH_TIMEOUT(!hasSpeaker("speaker_b"), AtOnceMs);
    m_audio->setVolume(text("speaker_b"), {90.0, false});
    m_audio->plug(SoundKind::Speaker, text("speaker_b"), {});
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->volume(), 90, AtOnceMs);
    m_speaker->setVolume(10);
    QTRY_COMPARE_WITH_TIMEOUT(qRound(m_audio->volumeOf(text("speaker_b")).percent), 10, AtOnceMs);
}

void tst_WasapiServer::noticesAreHeardAtOnce()
{
    for (const double percent : {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0}) {
        m_audio->setVolume(text("speaker_b"), {percent, false});
        QTRY_COMPARE_WITH_TIMEOUT(m_speaker->volume(), qRound(percent), NoticeMs);
    }
    for (const char* id : {"a", "b", "c", "d", "e", "f", "g", "h"}) {
        m_audio->plug(SoundKind::Speaker, text(id), text(id));
        QTRY_VERIFY_WITH_TIMEOUT(hasSpeaker(id), NoticeMs);
    }
}

void tst_WasapiServer::manyChangesMakeFewLists()
{
    constexpr int StormMs = 300;
    constexpr int MaxLists = 2 * StormMs / 20 + 10; // of both kinds, with a pause of 20 ms
    const int before = m_audio->lists();
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; clock.elapsed() < StormMs; ++i) {
        m_audio->setVolume(text("speaker_b"), {static_cast<double>(i % 90), false});
    }
    m_audio->setVolume(text("speaker_b"), {95.0, false});
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->volume(), 95, AtOnceMs);
    const int made = m_audio->lists() - before;
    QVERIFY2(made > 2 && made < MaxLists, qPrintable(QString::number(made)));
}

void tst_WasapiServer::lostServiceComesBack()
{
    m_audio->refuseEnumerator(AUDCLNT_E_SERVICE_NOT_RUNNING);
    QTRY_VERIFY_WITH_TIMEOUT(m_sound->serverState() == SoundServerState::Lost, TimeoutMs);
    QVERIFY(m_sound->speakers().empty());
    QVERIFY(m_speaker->state() == DeviceState::Absent);
    m_audio->refuseEnumerator(S_OK);
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->currentId(), text("speaker_b"), TimeoutMs);
    m_audio->unplug(text("speaker_a")); // notices come again, too
    QTRY_VERIFY_WITH_TIMEOUT(!hasSpeaker("speaker_a"), AtOnceMs);
}

void tst_WasapiServer::streamSaysWhyItFailed_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<DeviceState>("state");
    QTest::newRow("privacy switch") << static_cast<int>(E_ACCESSDENIED) << DeviceState::Denied;
    QTest::newRow("exclusive") << static_cast<int>(AUDCLNT_E_DEVICE_IN_USE) << DeviceState::Busy;
    QTest::newRow("driver") << static_cast<int>(E_FAIL) << DeviceState::Failed;
}

void tst_WasapiServer::streamSaysWhyItFailed()
{
    QFETCH(const int, error);
    QFETCH(const DeviceState, state);
    m_audio->refuseStreams(error);
    m_microphone->open();
    QTRY_VERIFY_WITH_TIMEOUT(m_microphone->state() == state, TimeoutMs);
    m_microphone->close();
}

void tst_WasapiServer::hangingSystemHoldsNobodyUp()
{
    TestSupport::GapMeter gaps;
    m_audio->setHanging(true);
    QTRY_VERIFY_WITH_TIMEOUT(m_sound->serverState() == SoundServerState::Silent, TimeoutMs);
    QVERIFY(m_sound->speakers().empty());
    m_audio->setHanging(false);
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->currentId(), text("speaker_b"), TimeoutMs);
    QVERIFY(m_sound->serverState() == SoundServerState::Running);

    m_audio->setHanging(true);
    m_speaker->setVolume(20);
    QElapsedTimer clock;
    clock.start();
    m_microphone.reset();
    m_speaker.reset();
    m_sound.reset();
    QVERIFY2(clock.elapsed() <= 100, qPrintable(QString::number(clock.elapsed())));
    QVERIFY2(gaps.longestMs() < MaxGapMs, qPrintable(QString::number(gaps.longestMs())));
}

// Windows' audio may hang as long as it likes, and the dialog be opened as often.
void tst_WasapiServer::hangingThreadsAreFew()
{
    m_audio->setHanging(true);
    while (DriverThread::count() < DriverThread::MaxCount) {
        const int before = m_audio->hangingCalls();
        WasapiServer server;
        QTRY_VERIFY(m_audio->hangingCalls() > before);
    }
    for (int i = 0; i < 3; ++i) {
        WasapiServer server;
        QCOMPARE(DriverThread::count(), DriverThread::MaxCount);
    }
}

QTEST_GUILESS_MAIN(tst_WasapiServer)
#include "tst_WasapiServer.moc"
