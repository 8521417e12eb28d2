// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiSound.h"

#include "platform/devices/sound/LevelMeter.h"
#include "platform/devices/sound/SoundMath.h"
#include "platform/devices/windows/DriverThread.h"
#include "tests/devices/SoundFiles.h"
#include "tests/devices/wasapi/NativeSound.h"
#include "tests/support/LockEvents.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/NoListener.h"
#include "tests/support/ProcessResources.h"
#include "tests/support/SoundRecording.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QtTest>
#include <cmath>

using namespace Platform;
using TestSupport::NativeSoundServer;
using TestSupport::SoundRecording;
using TestSupport::SoundSource;

namespace {

constexpr int TimeoutMs = 10000;
constexpr int Attempts = 3;
constexpr double AlikeAtLeast = 0.95;
constexpr int WarmUp = 20;
constexpr int ManyOpenings = 200;
constexpr int LevelsOfAnOpening = 5;    // in which the speaker is opened twice
constexpr qint64 MaxGrowthBytes = 1024; // for each opening
// A lock makes its event when two threads first want it at once, which is no leak.
constexpr int MaxMoreHandles = 5;

class Listener final : public TestSupport::NoListener
{
public:
    virtual ~Listener() = default;

    void levelMeasured(double measured) override
    {
        level = measured;
        ++levels;
    }
    void playbackFinished() override { ++finished; }

    double level = -1.0;
    int levels = 0;
    int finished = 0;
};

QString text(const char* latin)
{
    return QString::fromLatin1(latin);
}

} // namespace

// The whole sound system, under Wine, on devices of a real sound server. What Wine lacks, such as
// defaults and volumes, is in tst_WasapiServer.
class tst_WasapiSound : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_server.start()); }
    void init();
    void cleanup();
    void offersRealDevicesAlone();
    void playsOnTheChosenSpeaker();
    void levelOfTheChosenMicrophone();
    void microphoneIsHeardOnTheSpeaker();
    void frozenServerHoldsNobodyUp();
    void manyOpeningsLeaveNothing();

private:
    void openAndClose(int times);
    QString speaker(const char* name) const { return idOf(m_sound->speakers(), name); }
    QString microphone(const char* name) const { return idOf(m_microphone->devices(), name); }
    static QString idOf(const DeviceList& devices, const char* name);
    double likenessOfAPlayback(const QString& sound, const char* monitor);

    NativeSoundServer m_server;
    TestSupport::MemoryReport m_report;
    Listener m_listener;
    std::unique_ptr<WasapiSound> m_sound;
    std::unique_ptr<SpeakerBackend> m_speaker;
    std::unique_ptr<MicrophoneBackend> m_microphone;
};

QString tst_WasapiSound::idOf(const DeviceList& devices, const char* name)
{
    for (const DeviceInfo& device : devices) {
        if (device.name == text(name)) {
            return device.id;
        }
    }
    return {};
}

void tst_WasapiSound::init()
{
    m_sound = std::make_unique<WasapiSound>(m_report);
    m_speaker = m_sound->createSpeaker(m_listener);
    m_microphone = m_sound->createMicrophone(m_listener);
    QTRY_VERIFY_WITH_TIMEOUT(!m_microphone->currentId().isEmpty(), TimeoutMs);
}

void tst_WasapiSound::cleanup()
{
    m_microphone.reset();
    m_speaker.reset();
    m_sound.reset();
    QTRY_COMPARE_WITH_TIMEOUT(DriverThread::count(), 0, TimeoutMs);
}

void tst_WasapiSound::offersRealDevicesAlone()
{
    QCOMPARE(m_sound->speakers().size(), std::size_t{3});
    for (const char* name : {"Test Speaker A", "Test Speaker B", "Voice"}) {
        QVERIFY2(!speaker(name).isEmpty(), name);
    }
    QCOMPARE(m_microphone->devices().size(), std::size_t{1});
    QCOMPARE(m_microphone->currentName(), text("Test Microphone A"));
    QVERIFY(m_microphone->state() == DeviceState::Ready);
    QCOMPARE(m_speaker->volume(), 100);
}

double tst_WasapiSound::likenessOfAPlayback(const QString& sound, const char* monitor)
{
    SoundRecording recording(text(monitor));
    const int before = m_listener.finished;
    if (!recording.waitForStart()) {
        return 0.0;
    }
    const QString path = TestSupport::soundPath(sound);
    const std::unique_ptr<PlayerBackend> player = m_sound->createPlayer(path, 1.0F, m_listener);
    const bool hasEnded =
        QTest::qWaitFor([this, before] { return m_listener.finished > before; }, TimeoutMs);
    return hasEnded ? TestSupport::correlation(recording.samples(), TestSupport::readSound(path))
                    : 0.0;
}

// Wine tears the sound on a busy machine.
void tst_WasapiSound::playsOnTheChosenSpeaker()
{
    m_speaker->setCurrent(speaker("Test Speaker B"));
    QTRY_COMPARE(m_speaker->currentId(), speaker("Test Speaker B"));
    double likeness = 0.0;
    for (int attempt = 0; attempt < Attempts && likeness < AlikeAtLeast; ++attempt) {
        likeness = likenessOfAPlayback(text("Piano.mp3"), "speaker_b.monitor");
    }
    QVERIFY2(likeness >= AlikeAtLeast, qPrintable(QString::number(likeness)));
    QVERIFY(m_speaker->state() == DeviceState::Ready);
}

void tst_WasapiSound::levelOfTheChosenMicrophone()
{
    m_microphone->open();
    QTRY_VERIFY_WITH_TIMEOUT(m_microphone->state() == DeviceState::Silent, TimeoutMs);
    const SoundSource tone(text("voice"), TestSupport::tone(4.0, 440.0, -12.0));
    const double expected = LevelMeter::levelOf(amplitudeOfDecibels(-12.0));
    QTRY_VERIFY2_WITH_TIMEOUT(std::abs(m_listener.level - expected) < 0.02,
                              qPrintable(QString::number(m_listener.level)), TimeoutMs);
    QTRY_VERIFY_WITH_TIMEOUT(m_microphone->state() == DeviceState::Working, TimeoutMs);
    m_microphone->close();
    const QJsonObject figures = m_report.measurements[text("microphone")];
    QCOMPARE(figures.value(text("device")).toString(), text("Test Microphone A"));
    QCOMPARE(figures.value(text("state")).toString(), text("working"));
}

void tst_WasapiSound::microphoneIsHeardOnTheSpeaker()
{
    m_speaker->setCurrent(speaker("Test Speaker A"));
    QTRY_COMPARE(m_speaker->currentId(), speaker("Test Speaker A"));
    SoundRecording recording(text("speaker_a.monitor"));
    QVERIFY(recording.waitForStart());
    m_microphone->open();
    m_microphone->setListening(true);
    const SoundSource tone(text("voice"), TestSupport::tone(6.0, 440.0, -20.0));
    const auto isHeard = [&recording] {
        const std::vector<float> samples = recording.samples();
        return TestSupport::firstAbove(samples, TestSupport::Audible) < samples.size();
    };
    QTRY_VERIFY_WITH_TIMEOUT(isHeard(), TimeoutMs);
    m_microphone->close();
}

void tst_WasapiSound::frozenServerHoldsNobodyUp()
{
    m_microphone->open();
    QTRY_VERIFY_WITH_TIMEOUT(m_microphone->state() == DeviceState::Silent, TimeoutMs);
    QVERIFY(m_server.freeze());
    QTRY_VERIFY_WITH_TIMEOUT(m_microphone->state() == DeviceState::Hung, TimeoutMs);
    QElapsedTimer clock;
    clock.start();
    m_microphone.reset();
    m_speaker.reset();
    m_sound.reset();
    QVERIFY2(clock.elapsed() <= 100, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(m_server.thaw());
}

// Microphone, listening to oneself, and a sound.
void tst_WasapiSound::openAndClose(int times)
{
    const QString sound = TestSupport::soundPath(text("Piano.mp3"));
    for (int i = 0; i < times; ++i) {
        m_microphone->open();
        const std::unique_ptr<PlayerBackend> player =
            m_sound->createPlayer(sound, 1.0F, m_listener);
        QTRY_VERIFY_WITH_TIMEOUT(m_microphone->state() == DeviceState::Working, TimeoutMs);
        m_listener.levels = 0;
        QTRY_VERIFY_WITH_TIMEOUT(m_listener.levels >= LevelsOfAnOpening, TimeoutMs);
        m_microphone->close();
    }
    QTRY_COMPARE_WITH_TIMEOUT(DriverThread::count(), 1, TimeoutMs); // that of the endpoints
}

void tst_WasapiSound::manyOpeningsLeaveNothing()
{
    makeLockEvents();
    QLoggingCategory::setFilterRules(text("engine.*.info=false")); // QtTest keeps what is logged
    m_speaker->setCurrent(speaker("Test Speaker A"));
    m_microphone->setListening(true);
    const QByteArray tone = m_server.startTone(text("voice"));
    {
        SoundRecording recording(text("speaker_a.monitor"));
        QVERIFY(recording.waitForStart());
        openAndClose(WarmUp);
        const std::vector<float> heard = recording.samples();
        QVERIFY(TestSupport::firstAbove(heard, TestSupport::Audible) < heard.size());
    }
    const int handles = ProcessResources::openHandles();
    const int threads = ProcessResources::threads();
    const auto bytes = qint64(ProcessResources::heapBytes());
    openAndClose(ManyOpenings);
    const qint64 growth = (qint64(ProcessResources::heapBytes()) - bytes) / ManyOpenings;
    qInfo("handles %d to %d, threads %d to %d, %lld bytes an opening", handles,
          ProcessResources::openHandles(), threads, ProcessResources::threads(), growth);
    QTRY_VERIFY_WITH_TIMEOUT(ProcessResources::openHandles() <= handles + MaxMoreHandles,
                             TimeoutMs);
    QTRY_VERIFY_WITH_TIMEOUT(ProcessResources::threads() <= threads, TimeoutMs);
    QVERIFY(growth < MaxGrowthBytes);
    m_server.unplug(tone);
    QLoggingCategory::setFilterRules({});
}

QTEST_GUILESS_MAIN(tst_WasapiSound)
#include "tst_WasapiSound.moc"
