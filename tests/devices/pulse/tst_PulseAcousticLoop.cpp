// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundAcousticLoop.h"
#include "platform/devices/sound/Sweep.h"
#include "tests/devices/SoundTest.h"

#include <QElapsedTimer>
#include <QtTest>
#include <cmath>

using namespace Platform;
using Result = LoopOutcome::Result;

namespace {

// Beside the sweep and its echo: opening, and the buffers of the server.
constexpr int NormalMs = 4500;

} // namespace

class tst_PulseAcousticLoop : public TestSupport::SoundTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void hearsThroughALoop();
    void hearsInNoise();
    void doesNotHear_data();
    void doesNotHear();
    void isNotTried_data();
    void isNotTried();
    void breaksInTheMiddle_data();
    void breaksInTheMiddle();
    void destroyedInTheMiddle();

private:
    void start(const char* speaker = "speaker_a", const char* microphone = "microphone_a")
    {
        m_clock.start();
        m_loop = m_sound->createAcousticLoop(id(speaker), id(microphone));
    }
    LoopOutcome finish(int atMostMs = NormalMs);
    void connectSpeakerToMicrophone(int delayMs);
    int streams(); // of this program
    bool isPlaying();

    std::unique_ptr<SpeakerBackend> m_speaker; // keeps the connection
    std::unique_ptr<AcousticLoop> m_loop;
    QElapsedTimer m_clock;
};

void tst_PulseAcousticLoop::init()
{
    SoundTest::init();
    m_speaker = m_sound->createSpeaker(m_noListener);
    QTRY_COMPARE_WITH_TIMEOUT(m_speaker->currentId(), id("speaker_a"), TimeoutMs);
}

void tst_PulseAcousticLoop::cleanup()
{
    m_loop.reset();
    m_speaker.reset();
    SoundTest::cleanup();
}

LoopOutcome tst_PulseAcousticLoop::finish(int atMostMs)
{
    const bool hasEnded = QTest::qWaitFor([this] { return m_loop->outcome().has_value(); },
                                          SoundAcousticLoop::LongestMs + 1000);
    const qint64 ms = m_clock.elapsed();
    if (!hasEnded || ms > atMostMs) {
        qWarning("It took %lld ms", ms);
    }
    return m_loop->outcome().value_or(LoopOutcome());
}

// What the speaker plays comes to the microphone so much later.
void tst_PulseAcousticLoop::connectSpeakerToMicrophone(int delayMs)
{
    QVERIFY(
        !m_server
             ->control({QStringLiteral("load-module"), QStringLiteral("module-loopback"),
                        QStringLiteral("source=speaker_a.monitor"), QStringLiteral("sink=voice"),
                        QStringLiteral("latency_msec=%1").arg(delayMs)})
             .isEmpty());
}

int tst_PulseAcousticLoop::streams()
{
    int count = 0;
    for (const char* kind : {"sink-inputs", "source-outputs"}) {
        const QByteArray list = m_server->control({QStringLiteral("list"), id(kind)});
        count += list.count("\"Test sound\"") + list.count("\"Microphone check\"");
    }
    return count;
}

bool tst_PulseAcousticLoop::isPlaying()
{
    return m_server->control({QStringLiteral("list"), QStringLiteral("sink-inputs")})
        .contains("\"Test sound\"");
}

void tst_PulseAcousticLoop::hearsThroughALoop()
{
    constexpr int ShortMs = 50;
    constexpr int LongMs = 350;
    const QStringList before = m_server->state();
    double delays[2] = {};
    for (const int ms : {ShortMs, LongMs}) {
        connectSpeakerToMicrophone(ms);
        QTest::qWait(300); // the server fills the loop
        start();
        const LoopOutcome outcome = finish();
        QCOMPARE(outcome.reason, QString());
        QCOMPARE(outcome.result, Result::Heard);
        // The server's own loop may be shorter by a block.
        QVERIFY2(outcome.delayMs > ms - 20 && outcome.delayMs < ms + 200,
                 qPrintable(QString::number(outcome.delayMs)));
        QVERIFY2(std::abs(outcome.levelDb - Sweep::PeakDb) < 2,
                 qPrintable(QString::number(outcome.levelDb)));
        delays[ms == LongMs ? 1 : 0] = outcome.delayMs;
        // Nothing is left open, also while the loop still exists.
        QTRY_COMPARE_WITH_TIMEOUT(streams(), 0, TimeoutMs);
        m_server->control({QStringLiteral("unload-module"), QStringLiteral("module-loopback")});
    }
    QVERIFY2(std::abs(delays[1] - delays[0] - (LongMs - ShortMs)) < 60,
             qPrintable(QString::number(delays[1] - delays[0])));
    QCOMPARE(m_server->state(), before);
}

void tst_PulseAcousticLoop::hearsInNoise()
{
    connectSpeakerToMicrophone(50);
    const TestSupport::SoundSource voice(id("voice"),
                                         TestSupport::speech(id("one two three four five six "
                                                                "seven eight nine ten eleven")));
    start();
    QCOMPARE(finish().result, Result::Heard);
}

void tst_PulseAcousticLoop::doesNotHear_data()
{
    QTest::addColumn<QString>("sound");
    QTest::newRow("nothing") << QString();
    QTest::newRow("voice") << "one two three four five six seven eight nine ten eleven twelve";
    QTest::newRow("another tone") << "tone";
}

// The microphone hears a room, but not this speaker.
void tst_PulseAcousticLoop::doesNotHear()
{
    QFETCH(QString, sound);
    std::unique_ptr<TestSupport::SoundSource> source;
    if (!sound.isEmpty()) {
        source = std::make_unique<TestSupport::SoundSource>(
            id("voice"), sound == QLatin1String("tone") ? TestSupport::tone(6, 700, -20)
                                                        : TestSupport::speech(sound));
    }
    start();
    QTRY_VERIFY_WITH_TIMEOUT(isPlaying(), TimeoutMs);
    const LoopOutcome outcome = finish();
    QCOMPARE(outcome.reason, QString());
    QCOMPARE(outcome.result, Result::NotHeard);
}

void tst_PulseAcousticLoop::isNotTried_data()
{
    QTest::addColumn<QStringList>("order");
    QTest::addColumn<QString>("speaker");
    QTest::addColumn<QString>("reason");
    const QString speaker = QStringLiteral("speaker_a");
    const auto row = [](const char* name, const char* order, const QString& on,
                        const char* reason) {
        QTest::newRow(name) << QString::fromLatin1(order).split(QLatin1Char(' ')) << on
                            << QString::fromLatin1(reason);
    };
    row("muted speaker", "set-sink-mute speaker_a 1", speaker, "muted");
    row("muted microphone", "set-source-mute microphone_a 1", speaker, "muted");
    row("speaker at volume 0", "set-sink-volume speaker_a 0%", speaker, "volumeZero");
    row("no such speaker", "info", QStringLiteral("speaker_z"), "absent");
}

void tst_PulseAcousticLoop::isNotTried()
{
    QFETCH(QStringList, order);
    QFETCH(QString, speaker);
    m_server->control(order);
    const QStringList before = m_server->state();
    connectSpeakerToMicrophone(50);
    const auto isKnown = [this, &order] {
        return order.front() == QLatin1String("info") || m_speaker->volume() == 0 ||
               order.front() == QLatin1String("set-source-mute");
    };
    QTRY_VERIFY_WITH_TIMEOUT(isKnown(), TimeoutMs);
    start(qPrintable(speaker));
    const LoopOutcome outcome = finish(2000);
    QTEST(outcome.reason, "reason");
    QCOMPARE(outcome.result, Result::NotTried);
    QCOMPARE(streams(), 0);
    QCOMPARE(m_server->state(), before);
}

void tst_PulseAcousticLoop::breaksInTheMiddle_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QStringList>("reasons");
    QTest::newRow("killed") << "kill" << QStringList{QStringLiteral("serverLost")};
    QTest::newRow("frozen") << "freeze"
                            << QStringList{QStringLiteral("serverSilent"), QStringLiteral("hung")};
    QTest::newRow("speaker unplugged") << "unplug" << QStringList{QStringLiteral("absent")};
    QTest::newRow("muted") << "mute" << QStringList{QStringLiteral("muted")};
    QTest::newRow("connection of the sound cut")
        << "cut" << QStringList{QStringLiteral("failed"), QStringLiteral("serverLost")};
}

void tst_PulseAcousticLoop::breaksInTheMiddle()
{
    QFETCH(QString, what);
    QFETCH(QStringList, reasons);
    connectSpeakerToMicrophone(50);
    start();
    QTRY_VERIFY_WITH_TIMEOUT(isPlaying(), TimeoutMs);
    if (what == QLatin1String("kill")) {
        m_server->kill();
    } else if (what == QLatin1String("freeze")) {
        m_server->freeze();
    } else if (what == QLatin1String("unplug")) {
        m_server->unplug(m_server->speakerA());
    } else if (what == QLatin1String("mute")) {
        m_server->control({QStringLiteral("set-sink-mute"), id("speaker_a"), id("1")});
    } else {
        QVERIFY(m_server->cutConnection("Test sound"));
    }
    const LoopOutcome outcome = finish(SoundAcousticLoop::LongestMs + 500);
    if (what == QLatin1String("freeze")) {
        m_server->thaw();
    }
    QVERIFY2(reasons.contains(outcome.reason), qPrintable(outcome.reason));
    QCOMPARE(outcome.result, Result::NotTried);
    if (what != QLatin1String("kill")) {
        QTRY_COMPARE_WITH_TIMEOUT(streams(), 0, TimeoutMs);
    }
}

void tst_PulseAcousticLoop::destroyedInTheMiddle()
{
    start();
    QTRY_VERIFY_WITH_TIMEOUT(isPlaying(), TimeoutMs);
    m_loop.reset();
    QTRY_COMPARE_WITH_TIMEOUT(streams(), 0, TimeoutMs);
}

QTEST_GUILESS_MAIN(tst_PulseAcousticLoop)
#include "tst_PulseAcousticLoop.moc"
