// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundBuffer.h"
#include "platform/devices/wasapi/WasapiPlayback.h"
#include "platform/devices/windows/DriverThread.h"
#include "tests/devices/SoundFiles.h"
#include "tests/devices/wasapi/NativeSound.h"
#include "tests/devices/wasapi/WasapiEndpoint.h"
#include "tests/support/SoundRecording.h"

#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <memory>

using namespace Platform;
using namespace std::chrono_literals;
using TestSupport::NativeSoundServer;
using TestSupport::SoundRate;
using TestSupport::SoundRecording;

namespace {

constexpr int TimeoutMs = 10000;
constexpr int Attempts = 3;
constexpr double MaxLostSeconds = 0.1; // a fraction of the buffer
constexpr double AlikeAtLeast = 0.95;
constexpr double OthersAtMost = 0.5;
constexpr int Openings = 3 * DriverThread::MaxCount;
constexpr qint64 LongestCallMs = 100;

// One sound that plays, with what came of it.
class Play
{
public:
    explicit Play(const std::vector<float>& mono)
        : m_sound(std::make_shared<SoundBuffer>()),
          playback(m_sound, [outcome = outcome](std::optional<DeviceState> failure) {
              outcome->failure = failure.value_or(DeviceState::Working);
              ++outcome->count;
          })
    {
        m_sound->begin({SoundRate, 1});
        m_sound->append(mono.data(), mono.size());
        m_sound->end();
    }

    // The state is Working if the sound came to its end.
    struct Outcome
    {
        std::atomic_int count = 0;
        std::atomic<DeviceState> failure = DeviceState::Ready;
    };

private:
    std::shared_ptr<SoundBuffer> m_sound;

public:
    std::shared_ptr<Outcome> outcome = std::make_shared<Outcome>();
    WasapiPlayback playback;
};

} // namespace

// Under Wine, on devices of a real sound server.
class tst_WasapiPlayback : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_server.start());
        m_speakerA = TestSupport::speakerCalled(QStringLiteral("Test Speaker A"));
        m_speakerB = TestSupport::speakerCalled(QStringLiteral("Test Speaker B"));
        QVERIFY(!m_speakerA.isEmpty() && !m_speakerB.isEmpty());
    }

    // No stream and no thread is left.
    void cleanup() { QTRY_COMPARE_WITH_TIMEOUT(DriverThread::count(), 0, TimeoutMs); }

    void everySoundIsHeard_data()
    {
        QTest::addColumn<int>("sound");
        const QStringList names = TestSupport::soundNames();
        QCOMPARE(names.size(), 8);
        for (int i = 0; i < names.size(); ++i) {
            QTest::newRow(qPrintable(names[i])) << i;
        }
    }

    // Wine hands 10 ms at a time to the server, which tears the sound on a busy machine.
    void everySoundIsHeard()
    {
        QFETCH(int, sound);
        QString fault;
        for (int attempt = 0; attempt < Attempts; ++attempt) {
            playAndCompare(sound, fault);
            if (fault.isEmpty()) {
                return;
            }
            qInfo("%s", qPrintable(fault));
        }
        QFAIL(qPrintable(fault));
    }

    // Nothing is heard twice, and nothing is left out.
    void movesToAnotherSpeaker()
    {
        constexpr double Seconds = 3.0;
        SoundRecording first(QStringLiteral("speaker_a.monitor"));
        SoundRecording second(QStringLiteral("speaker_b.monitor"));
        QVERIFY(first.waitForStart() && second.waitForStart());
        Play play(TestSupport::tone(Seconds, 440.0, -12.0));
        play.playback.playOn(m_speakerA);
        QTRY_VERIFY_WITH_TIMEOUT(heardSeconds(first) > Seconds / 3, TimeoutMs);
        play.playback.playOn(m_speakerB);
        QTRY_COMPARE_WITH_TIMEOUT(play.outcome->count.load(), 1, TimeoutMs);
        QVERIFY(play.outcome->failure == DeviceState::Working);
        const double all = heardSeconds(first) + heardSeconds(second);
        qInfo("%.3f s heard", all);
        QVERIFY2(std::abs(all - Seconds) < MaxLostSeconds, qPrintable(QString::number(all)));
    }

    void unpluggedAndPluggedAgain()
    {
        Play play(TestSupport::tone(5.0, 440.0, -12.0));
        play.playback.playOn(m_speakerB);
        QTRY_VERIFY_WITH_TIMEOUT(hasBegun(play), TimeoutMs);
        m_server.unplug(m_server.speakerB());
        QTRY_COMPARE_WITH_TIMEOUT(play.outcome->count.load(), 1, TimeoutMs);
        QVERIFY(play.outcome->failure == DeviceState::Failed);
        QVERIFY(!plays(m_speakerB)); // while it is away
        m_server.plugSpeaker(QStringLiteral("speaker_b"), QStringLiteral("Test Speaker B"));
        QTRY_VERIFY_WITH_TIMEOUT(plays(m_speakerB), TimeoutMs);
        QCOMPARE(play.outcome->count.load(), 1);
    }

    void serverIsKilledAndStartsAgain()
    {
        Play play(TestSupport::tone(5.0, 440.0, -12.0));
        play.playback.playOn(m_speakerA);
        QTRY_VERIFY_WITH_TIMEOUT(hasBegun(play), TimeoutMs);
        m_server.kill();
        QTRY_COMPARE_WITH_TIMEOUT(play.outcome->count.load(), 1, TimeoutMs);
        QVERIFY(play.outcome->failure == DeviceState::Failed);
        QVERIFY(m_server.start());
        QTRY_VERIFY_WITH_TIMEOUT(plays(m_speakerA), TimeoutMs);
    }

    // Each sound leaves a thread behind that hangs, but never more than the limit.
    void serverIsFrozen()
    {
        Play play(TestSupport::tone(5.0, 440.0, -12.0));
        play.playback.playOn(m_speakerA);
        QTRY_VERIFY_WITH_TIMEOUT(hasBegun(play), TimeoutMs);
        QVERIFY(m_server.freeze());
        qint64 longest = 0;
        int most = 0;
        const std::vector<float> tone = TestSupport::tone(0.1, 440.0, -12.0);
        for (int i = 0; i < Openings; ++i) {
            std::unique_ptr<Play> another;
            const auto call = [&longest](const auto& what) {
                QElapsedTimer timer;
                timer.start();
                what();
                longest = std::max(longest, timer.elapsed());
            };
            call([&] {
                another = std::make_unique<Play>(tone);
                another->playback.playOn(m_speakerA);
            });
            QTest::qWait(10); // lets it come to where it hangs
            call([&] { another.reset(); });
            most = std::max(most, DriverThread::count());
        }
        qInfo("longest call %lld ms, at most %d threads", longest, most);
        QVERIFY(m_server.thaw());
        QVERIFY(longest < LongestCallMs);
        QVERIFY(most <= DriverThread::MaxCount);
        QTRY_VERIFY_WITH_TIMEOUT(plays(m_speakerA), TimeoutMs);
    }

    void nothingToPlay()
    {
        Play play({});
        play.playback.playOn(m_speakerA);
        QTRY_COMPARE_WITH_TIMEOUT(play.outcome->count.load(), 1, TimeoutMs);
        QVERIFY(play.outcome->failure == DeviceState::Failed);
    }

    void stoppedSoundDoesNotFinish()
    {
        Play play(TestSupport::tone(0.5, 440.0, -12.0));
        play.playback.playOn(m_speakerA);
        QTRY_VERIFY_WITH_TIMEOUT(hasBegun(play), TimeoutMs);
        play.playback.stop();
        QTRY_COMPARE_WITH_TIMEOUT(DriverThread::count(), 0, TimeoutMs);
        QCOMPARE(play.outcome->count.load(), 0);
    }

private:
    void playAndCompare(int sound, QString& fault) const
    {
        fault = QStringLiteral("It isn't played");
        SoundRecording recording(QStringLiteral("speaker_a.monitor"));
        QVERIFY(recording.waitForStart());
        const QString name = TestSupport::soundNames()[sound];
        Play play(TestSupport::readSound(TestSupport::soundPath(name)));
        play.playback.playOn(m_speakerA);
        QTRY_COMPARE_WITH_TIMEOUT(play.outcome->count.load(), 1, TimeoutMs);
        QVERIFY(play.outcome->failure == DeviceState::Working);
        const std::vector<double> alike = TestSupport::compareWithSounds(recording.samples());
        fault.clear();
        for (int i = 0; i < int(alike.size()); ++i) {
            const double value = alike[std::size_t(i)];
            if (i == sound ? value < AlikeAtLeast : value > OthersAtMost) {
                fault += QStringLiteral("%1: %2 ").arg(TestSupport::soundNames()[i]).arg(value);
            }
        }
    }

    static bool hasBegun(const Play& play)
    {
        return play.playback.begin() != std::chrono::steady_clock::time_point();
    }

    // Without the gaps of a busy machine.
    static double heardSeconds(SoundRecording& recording)
    {
        constexpr std::size_t Moment = SoundRate / 100;
        const std::vector<float> samples = recording.samples();
        double result = 0.0;
        for (std::size_t from = 0; from + Moment <= samples.size(); from += Moment) {
            const bool isHeard =
                TestSupport::rms(samples, from, Moment) > double(TestSupport::Audible);
            result += isHeard ? double(Moment) / SoundRate : 0.0;
        }
        return result;
    }

    static bool plays(const QString& speaker)
    {
        Play play(TestSupport::tone(0.1, 440.0, -12.0));
        play.playback.playOn(speaker);
        return QTest::qWaitFor([&play] { return play.outcome->count > 0; }, TimeoutMs) &&
               play.outcome->failure == DeviceState::Working;
    }

    NativeSoundServer m_server;
    QString m_speakerA;
    QString m_speakerB;
};

QTEST_GUILESS_MAIN(tst_WasapiPlayback)
#include "tst_WasapiPlayback.moc"
