// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundMath.h"
#include "tests/devices/SoundFiles.h"
#include "tests/devices/SoundTest.h"
#include "tests/support/GapMeter.h"
#include "tests/support/MachineDelay.h"
#include "tests/support/SoundRecording.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>
#include <sys/stat.h>

using namespace Platform;
using TestSupport::GapMeter;
using TestSupport::soundNames;
using TestSupport::soundPath;
using TestSupport::SoundRecording;

namespace {

constexpr int BadFileMs = 1000;
constexpr int PlayMs = 8000;
constexpr qint64 ShortBytes = 32000; // over a second of sound
constexpr double AlikeAtLeast = 0.95;
constexpr double OthersAtMost = 0.5;

class PlayerListener final : public PlayerBackend::Listener
{
public:
    void playbackFinished() override { ++finished; }

    int finished = 0;
};

} // namespace

class tst_PulsePlayer : public TestSupport::SoundTest
{
    Q_OBJECT

private Q_SLOTS:
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
        SoundTest::init();
        m_speaker = m_sound->createSpeaker(m_noListener);
        QTRY_COMPARE_WITH_TIMEOUT(m_speaker->currentId(), id("speaker_a"), TimeoutMs);
        m_listener = {};
    }

    void cleanup()
    {
        m_player.reset();
        m_speaker.reset();
        SoundTest::cleanup();
    }

    // All sounds at once, each on its own speaker. Each must be heard there and on no other
    // speaker.
    void playsTheSounds()
    {
        QStringList names = soundNames();
        QCOMPARE(names.size(), 8);
        for (const QString& name : qAsConst(names)) {
            QVERIFY(!m_server->plugSpeaker(speakerFor(name), name).isEmpty());
        }
        const QString fault = TestSupport::measuredFault([this, &names] {
            names = playTogether(names); // only the wrong ones are repeated
            return names.join(QLatin1Char(' '));
        });
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }

    void volumeSetsTheLoudness()
    {
        const double full = loudness();
        m_speaker->setVolume(50);
        QTRY_VERIFY(m_server->control({id("get-sink-volume"), id("speaker_a")}).contains("50%"));
        const double half = loudness();
        // The volume scale of sound servers is cubic.
        QVERIFY2(std::abs((half - full) - 3.0 * decibelsOfAmplitude(0.5)) < 0.5,
                 qPrintable(QStringLiteral("%1 dB").arg(half - full)));
    }

    void endsAtOnceWithABadFile()
    {
        const QTemporaryDir folder;
        for (const char* name : {"missing", "folder", "fifo", "empty", "huge", "noise", "text",
                                 "half-header", "unreadable-path\n<b>"}) {
            qInfo("%s", name);
            const QString path = folder.filePath(name);
            makeBadFile(name, path);
            m_report = {};
            m_listener = {};
            play(path);
            QCOMPARE(m_listener.finished, 0); // never during the call
            QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, BadFileMs);
            QTest::qWait(100);
            QCOMPARE(m_listener.finished, 1);
            QVERIFY(isUsable(m_speaker->state())); // a bad file is no fault of the device
            QVERIFY(soundPlayed().isObject());
            QVERIFY(soundPlayed().toObject().contains(id("failed")));
        }
    }

    void playsACutFileUpToItsEnd()
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
        GapMeter gaps;
        m_player.reset();
        QVERIFY(gaps.longestMs() < MaxGapMs);
        QTRY_COMPARE(m_server->control({id("list"), id("short"), id("sink-inputs")}), QByteArray());
        QCOMPARE(m_listener.finished, 0);
    }

    void followsTheChosenSpeaker()
    {
        SoundRecording recording(id("speaker_b.monitor"));
        QVERIFY(recording.waitForStart());
        play(m_shortSound);
        QTRY_VERIFY(m_server->control({id("list"), id("sink-inputs")}).contains("float32"));
        m_speaker->setCurrent(id("speaker_b"));
        QTRY_VERIFY(recording.peak() > Audible);
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, PlayMs);
    }

    void endsIfItsSpeakerIsUnplugged()
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
        QTRY_VERIFY(other.seconds() > 0.2); // what was still buffered has arrived
        QVERIFY(other.peak() < Audible);
    }

    void endsIfTheServerDies()
    {
        SoundRecording recording(id("speaker_a.monitor"));
        QVERIFY(recording.waitForStart());
        play(soundPath(QStringLiteral("Saxophone.mp3")));
        QTRY_VERIFY(recording.peak() > Audible);
        m_server->kill();
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, 1000);
        // And once more without a server.
        m_listener = {};
        play(soundPath(QStringLiteral("Saxophone.mp3")));
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, BadFileMs);
    }

    void endsIfTheServerFreezes()
    {
        m_server->freeze();
        GapMeter gaps;
        play(m_shortSound);
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, PlayMs);
        m_player.reset();
        m_server->thaw();
        QVERIFY2(gaps.longestMs() < MaxGapMs, qPrintable(QString::number(gaps.longestMs())));
        m_listener = {};
        play(m_shortSound);
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, PlayMs);
    }

    void endsAtOnceWithoutASpeaker()
    {
        m_server->control({id("unload-module"), id("module-null-sink")});
        QTRY_VERIFY(m_sound->speakers().empty());
        play(soundPath(QStringLiteral("Shutter.mp3")));
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, BadFileMs);
    }

    // The first user opens the connection, even if it is a player.
    void connectsIfItIsTheFirstUser()
    {
        m_speaker.reset();
        SoundRecording recording(id("speaker_a.monitor"));
        QVERIFY(recording.waitForStart());
        play(m_shortSound);
        QTRY_COMPARE_WITH_TIMEOUT(m_listener.finished, 1, PlayMs);
        QVERIFY(recording.peak() > Audible);
    }

private:
    // One sound on its own speaker.
    struct Place
    {
        explicit Place(const QString& speakerId)
            : recording(speakerId + ".monitor"), speaker(sound.createSpeaker(listener))
        {
            speaker->setCurrent(speakerId);
        }

        TestSupport::MemoryReport report;
        PulseSound sound{report};
        TestSupport::NoListener listener;
        PlayerListener ending;
        SoundRecording recording;
        std::unique_ptr<SpeakerBackend> speaker;
        std::unique_ptr<PlayerBackend> player;
    };

    static QString speakerFor(const QString& sound)
    {
        return "for_" + sound.section('.', 0, 0).toLower();
    }

    // Returns the sounds that were not heard right; all of them if the setup failed.
    QStringList playTogether(const QStringList& names)
    {
        SoundRecording other(id("speaker_a.monitor"));
        bool isReady = other.waitForStart();
        std::vector<std::unique_ptr<Place>> places;
        for (const QString& name : names) {
            places.push_back(std::make_unique<Place>(speakerFor(name)));
            Place& place = *places.back();
            // One after the other: PulseAudio loses recordings that begin at the same time.
            isReady = place.recording.waitForStart() &&
                      QTest::qWaitFor([&] { return isUsable(place.speaker->state()); }) && isReady;
        }
        for (std::size_t i = 0; i < places.size(); ++i) {
            Place& place = *places[i];
            place.player = place.sound.createPlayer(soundPath(names.at(static_cast<int>(i))), 1.0F,
                                                    place.ending);
        }
        for (const auto& place : places) {
            isReady =
                QTest::qWaitFor([&] { return place->ending.finished == 1; }, PlayMs) && isReady;
        }
        if (!isReady || other.peak() >= Audible) {
            return names;
        }
        QStringList faulty;
        for (std::size_t i = 0; i < places.size(); ++i) {
            const QString& name = names.at(static_cast<int>(i));
            if (!isHeardAs(name, places[i]->recording.samples())) {
                faulty.append(name);
            }
        }
        return faulty;
    }

    static bool isHeardAs(const QString& name, const std::vector<float>& recording)
    {
        const std::vector<double> alike = TestSupport::compareWithSounds(recording);
        const QStringList all = soundNames();
        QString table;
        bool result = true;
        for (int i = 0; i < all.size(); ++i) {
            const double value = alike[static_cast<std::size_t>(i)];
            table += QStringLiteral("  %1").arg(value, 0, 'f', 3);
            result &= all.at(i) == name ? value > AlikeAtLeast : value < OthersAtMost;
        }
        qInfo("%-14s%s", qPrintable(name), qPrintable(table));
        return result;
    }

    static void makeBadFile(const QByteArray& name, const QString& path)
    {
        if (name == "folder") {
            QVERIFY(QDir().mkdir(path));
        } else if (name == "fifo") {
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        } else if (name != "missing" && !name.startsWith("unread")) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            if (name == "huge") {
                QVERIFY(file.resize(1LL << 40));
            } else if (name == "noise") {
                quint32 state = 1;
                for (int i = 0; i < 200000; ++i) {
                    state = state * 1664525U + 1013904223U;
                    file.putChar(static_cast<char>(state >> 24U));
                }
            } else if (name == "text") {
                file.write(QByteArray("This is no sound.\n").repeated(5000));
            } else if (name == "half-header") {
                file.write(QByteArray::fromHex("fffb90"));
            }
        }
    }

    QJsonValue soundPlayed() const { return figures("speaker").value(id("soundPlayed")); }

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
        return decibelsOfAmplitude(
            TestSupport::rms(samples, start, std::size_t{SoundRecording::Rate}));
    }

    const QTemporaryDir m_folder;
    const QString m_shortSound = m_folder.filePath(id("short.mp3"));
    std::unique_ptr<SpeakerBackend> m_speaker;
    PlayerListener m_listener;
    std::unique_ptr<PlayerBackend> m_player;
};

QTEST_GUILESS_MAIN(tst_PulsePlayer)
#include "tst_PulsePlayer.moc"
