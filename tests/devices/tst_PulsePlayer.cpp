// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseSound.h"
#include "tests/devices/SoundFiles.h"
#include "tests/support/GapMeter.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/SoundRecording.h"
#include "tests/support/SoundServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>
#include <memory>
#include <sys/stat.h>

using namespace Platform;
using TestSupport::soundNames;
using TestSupport::soundPath;
using TestSupport::SoundRecording;
using TestSupport::SoundServer;

namespace {

constexpr int MaxGapMs = 50;
constexpr int TimeoutMs = 5000;
constexpr int BadFileMs = 1000;
constexpr int PlayMs = 8000;
constexpr qint64 ShortBytes = 32000; // over a second of sound
constexpr double AlikeAtLeast = 0.95;
constexpr double OthersAtMost = 0.5;
constexpr float Audible = 0.003F;

class SpeakerListener final : public SpeakerBackend::Listener
{
public:
    void speakerListChanged() override {}
    void currentSpeakerChanged(const QString&) override {}
    void speakerVolumeChanged(int) override {}
    void speakerWorkStateChanged(bool) override {}
};

class PlayerListener final : public PlayerBackend::Listener
{
public:
    void playbackFinished() override { ++finished; }

    int finished = 0;
};

QString id(const char* name)
{
    return QString::fromLatin1(name);
}

} // namespace

class tst_PulsePlayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { SoundServer::addTestRows(); }

    void initTestCase()
    {
        QFile whole(soundPath(QStringLiteral("Saxophone.mp3")));
        QVERIFY(whole.open(QIODevice::ReadOnly));
        QFile file(m_shortSound);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(whole.read(ShortBytes)), ShortBytes);
    }

    void init()
    {
        m_server = SoundServer::startForTest();
        QVERIFY(m_server);
        m_sound = std::make_unique<PulseSound>(m_report);
        m_speaker = m_sound->createSpeaker(m_speakerListener);
        QTRY_COMPARE_WITH_TIMEOUT(m_speaker->currentId(), id("speaker_a"), TimeoutMs);
        m_listener = {};
    }

    void cleanup()
    {
        m_player.reset();
        m_speaker.reset();
        m_sound.reset();
        m_server.reset();
    }

    // Each of the sounds comes out as itself, on the chosen device and on no other: all at once,
    // each on a device of its own.
    void playsTheSounds()
    {
        struct Place
        {
            explicit Place(const QString& speakerId) : recording(speakerId + ".monitor") {}

            TestSupport::MemoryReport report;
            PulseSound sound{report};
            SpeakerListener speakerListener;
            PlayerListener listener;
            SoundRecording recording;
            std::unique_ptr<SpeakerBackend> speaker;
            std::unique_ptr<PlayerBackend> player;
        };
        const QStringList names = soundNames();
        QCOMPARE(names.size(), 8);
        SoundRecording other(id("speaker_a.monitor"));
        QVERIFY(other.waitForStart());
        std::vector<std::unique_ptr<Place>> places;
        for (const QString& name : names) {
            const QString speakerId = "for_" + name.section('.', 0, 0).toLower();
            QVERIFY(!m_server->plugSpeaker(speakerId, name).isEmpty());
            places.push_back(std::make_unique<Place>(speakerId));
            Place& place = *places.back();
            QVERIFY(place.recording.waitForStart());
            place.speaker = place.sound.createSpeaker(place.speakerListener);
            place.speaker->setCurrent(speakerId);
            QTRY_COMPARE(place.speaker->currentId(), speakerId);
        }
        for (std::size_t i = 0; i < places.size(); ++i) {
            places[i]->player = places[i]->sound.createPlayer(
                soundPath(names.at(static_cast<int>(i))), 1.0F, places[i]->listener);
        }
        for (std::size_t i = 0; i < places.size(); ++i) {
            QTRY_COMPARE_WITH_TIMEOUT(places[i]->listener.finished, 1, PlayMs);
        }
        QVERIFY(other.peak() < Audible);
        for (std::size_t i = 0; i < places.size(); ++i) {
            const QByteArray played = names.at(static_cast<int>(i)).toUtf8();
            const auto alike = TestSupport::compareWithSounds(places[i]->recording.samples());
            QByteArray table;
            for (const double value : alike) {
                table += "  " + QByteArray::number(value, 'f', 3);
            }
            qInfo("%-14s%s", played.constData(), table.constData());
            for (std::size_t k = 0; k < alike.size(); ++k) {
                QVERIFY2(k == i ? alike[k] > AlikeAtLeast : alike[k] < OthersAtMost,
                         played.constData());
            }
        }
    }

    void volumeIsWhatIsHeard()
    {
        const double full = loudness();
        m_speaker->setVolume(50);
        QTRY_VERIFY(m_server->control({id("get-sink-volume"), id("speaker_a")}).contains("50%"));
        const double half = loudness();
        // The percentages of sound servers are cubic.
        QVERIFY2(std::abs((half - full) - 60.0 * std::log10(0.5)) < 0.5,
                 qPrintable(QStringLiteral("%1 dB").arg(half - full)));
    }

    void badFiles_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"missing", "folder", "fifo", "empty", "huge", "noise", "text",
                                 "half-header", "unreadable-path\n<b>"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void badFiles()
    {
        QFETCH(QString, name);
        const QTemporaryDir folder;
        const QString path = folder.filePath(name);
        if (name == QLatin1String("folder")) {
            QVERIFY(QDir().mkdir(path));
        } else if (name == QLatin1String("fifo")) {
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        } else if (name != QLatin1String("missing") && !name.startsWith(QLatin1String("unread"))) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            if (name == QLatin1String("huge")) {
                QVERIFY(file.resize(1LL << 40));
            } else if (name == QLatin1String("noise")) {
                quint32 state = 1;
                for (int i = 0; i < 200000; ++i) {
                    state = state * 1664525U + 1013904223U;
                    file.putChar(static_cast<char>(state >> 24U));
                }
            } else if (name == QLatin1String("text")) {
                file.write(QByteArray("This is no sound.\n").repeated(5000));
            } else if (name == QLatin1String("half-header")) {
                file.write(QByteArray::fromHex("fffb90"));
            }
        }
        QElapsedTimer clock;
        clock.start();
        play(path);
        QCOMPARE(m_listener.finished, 0); // not from inside the call
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, BadFileMs);
        QVERIFY(clock.elapsed() < BadFileMs);
        QTest::qWait(100);
        QCOMPARE(m_listener.finished, 1);
        QVERIFY(isUsable(m_speaker->state())); // the device is not to blame
        QVERIFY(soundPlayed().isObject());
        QVERIFY(soundPlayed().toObject().contains(id("failed")));
    }

    // A file that breaks off plays up to there.
    void cutFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("cut.mp3"));
        QFile whole(soundPath(QStringLiteral("Piano.mp3")));
        QVERIFY(whole.open(QIODevice::ReadOnly));
        QFile cut(path);
        QVERIFY(cut.open(QIODevice::WriteOnly));
        cut.write(whole.read(30000));
        cut.write(QByteArray(3000, '\x55'));
        cut.close();
        SoundRecording recording(id("speaker_a.monitor"));
        QVERIFY(recording.waitForStart());
        play(path);
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, PlayMs);
        QVERIFY(recording.peak() > Audible);
        QCOMPARE(soundPlayed(), QJsonValue(QStringLiteral("cut")));
    }

    void stopsAtOnce()
    {
        SoundRecording recording(id("speaker_a.monitor"));
        QVERIFY(recording.waitForStart());
        play(soundPath(QStringLiteral("Saxophone.mp3")));
        QTRY_VERIFY(recording.peak() > Audible);
        QElapsedTimer clock;
        clock.start();
        m_player.reset();
        QVERIFY(clock.elapsed() < MaxGapMs);
        QTRY_COMPARE(m_server->control({id("list"), id("short"), id("sink-inputs")}), QByteArray());
        QCOMPARE(m_listener.finished, 0);
    }

    void followsTheChoice()
    {
        SoundRecording recording(id("speaker_b.monitor"));
        QVERIFY(recording.waitForStart());
        play(m_shortSound);
        QTRY_VERIFY(m_server->control({id("list"), id("sink-inputs")}).contains("float32"));
        m_speaker->setCurrent(id("speaker_b"));
        QTRY_VERIFY(recording.peak() > Audible);
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, PlayMs);
    }

    void endsWithItsDevice()
    {
        m_speaker->setCurrent(id("speaker_b"));
        SoundRecording other(id("speaker_a.monitor"));
        SoundRecording chosen(id("speaker_b.monitor"));
        QVERIFY(other.waitForStart());
        QVERIFY(chosen.waitForStart());
        play(soundPath(QStringLiteral("Saxophone.mp3")));
        QTRY_VERIFY(chosen.peak() > Audible);
        m_server->unplug(m_server->speakerB());
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, 1000);
        other.forget();
        QTRY_VERIFY(other.seconds() > 0.2); // what was on its way has arrived
        QVERIFY(other.peak() < Audible);
    }

    void endsWithTheServer()
    {
        SoundRecording recording(id("speaker_a.monitor"));
        QVERIFY(recording.waitForStart());
        play(soundPath(QStringLiteral("Saxophone.mp3")));
        QTRY_VERIFY(recording.peak() > Audible);
        m_server->kill();
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, 1000);
        // Without a server there is nothing to play on.
        m_listener = {};
        play(soundPath(QStringLiteral("Saxophone.mp3")));
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, BadFileMs);
    }

    void frozenServer()
    {
        m_server->freeze();
        TestSupport::GapMeter gaps;
        play(m_shortSound);
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, PlayMs);
        m_player.reset();
        m_server->thaw();
        QVERIFY2(gaps.longestMs() < MaxGapMs, qPrintable(QString::number(gaps.longestMs())));
        m_listener = {};
        play(m_shortSound);
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, PlayMs);
    }

    void withoutASpeaker()
    {
        m_server->control({id("unload-module"), id("module-null-sink")});
        QTRY_VERIFY(m_sound->speakers().empty());
        play(soundPath(QStringLiteral("Shutter.mp3")));
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, BadFileMs);
    }

    // A player that comes first brings the connection itself.
    void aloneIsEnough()
    {
        m_speaker.reset();
        SoundRecording recording(id("speaker_a.monitor"));
        QVERIFY(recording.waitForStart());
        play(m_shortSound);
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, PlayMs);
        QVERIFY(recording.peak() > Audible);
    }

private:
    QJsonValue soundPlayed() const
    {
        return m_report.measurements.value(id("speaker")).value(id("soundPlayed"));
    }

    void play(const QString& path)
    {
        m_player.reset();
        m_player = m_sound->createPlayer(path, 1.0F, m_listener);
    }

    double loudness()
    {
        SoundRecording recording(id("speaker_a.monitor"));
        if (!recording.waitForStart()) {
            return 0.0;
        }
        m_listener = {};
        play(m_shortSound);
        if (!QTest::qWaitFor([this] { return m_listener.finished == 1; }, PlayMs)) {
            return 0.0;
        }
        const std::vector<float> samples = recording.samples();
        const std::size_t start = TestSupport::firstAbove(samples, Audible / 10.0F);
        return TestSupport::decibels(
            TestSupport::rms(samples, start, std::size_t{SoundRecording::Rate}));
    }

    const QTemporaryDir m_folder;
    const QString m_shortSound = m_folder.filePath(id("short.mp3"));
    std::unique_ptr<SoundServer> m_server;
    TestSupport::MemoryReport m_report;
    std::unique_ptr<PulseSound> m_sound;
    SpeakerListener m_speakerListener;
    std::unique_ptr<SpeakerBackend> m_speaker;
    PlayerListener m_listener;
    std::unique_ptr<PlayerBackend> m_player;
};

QTEST_GUILESS_MAIN(tst_PulsePlayer)
#include "tst_PulsePlayer.moc"
