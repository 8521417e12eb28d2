// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundMath.h"
#include "platform/devices/sound/Sweep.h"
#include "tests/support/SoundRecording.h"

#include <QtTest>
#include <cmath>
#include <random>

using namespace Platform;

namespace {

constexpr unsigned Rate = 48000;
constexpr double RecordingSeconds = 3.0;
constexpr double BeginsAt = 1.234;

using Sound = std::vector<float>;

Sound noise(double seconds, double decibels, unsigned seed)
{
    std::mt19937 random(seed);
    std::normal_distribution<double> normal(0, amplitudeOfDecibels(decibels));
    Sound sound(static_cast<std::size_t>(seconds * Rate));
    for (float& sample : sound) {
        sample = static_cast<float>(normal(random));
    }
    return sound;
}

// Louder at low frequencies, as rooms and streets are.
Sound rumble(double seconds, unsigned seed)
{
    Sound sound = noise(seconds, -40, seed);
    float last = 0;
    for (float& sample : sound) {
        last = 0.98F * last + sample;
        sample = last;
    }
    return sound;
}

// Adds the sweep as it comes back: so much quieter, and with the sign turned around if gain < 0.
void addSweep(Sound& sound, double atSecond, double gain)
{
    const Sound sweep = Sweep::samples(Rate);
    const auto from = static_cast<std::size_t>(std::lround(atSecond * Rate));
    for (std::size_t i = 0; i < sweep.size() && from + i < sound.size(); ++i) {
        sound[from + i] += static_cast<float>(gain * static_cast<double>(sweep[i]));
    }
}

double correlationIn(const Sound& sound)
{
    const auto match = Sweep::bestMatch(sound, Rate);
    return match ? match->correlation : 0;
}

bool isFarBelowTheLimit(const Sound& sound)
{
    const double correlation = correlationIn(sound);
    qDebug("correlation %.3f", correlation);
    return correlation < 0.7 * Sweep::LeastCorrelation;
}

} // namespace

class tst_Sweep : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isQuietAndFaded();
    void isFound_data();
    void isFound();
    void isFoundInEchoes();
    void isFoundThroughATelephone();
    void isFoundWithAGap();
    void noiseIsNoSweep_data();
    void noiseIsNoSweep();
    void voiceIsNoSweep_data();
    void voiceIsNoSweep();
    void toneIsNoSweep();
    void fallingSweepIsNoSweep();
    void tooShortOrSilent();
};

void tst_Sweep::isQuietAndFaded()
{
    const Sound sweep = Sweep::samples(Rate);
    QCOMPARE(sweep.size(), std::size_t(Rate));
    const auto loudest = [&sweep](std::size_t from, std::size_t to) {
        float peak = 0;
        for (std::size_t i = from; i < to; ++i) {
            peak = std::max(peak, std::abs(sweep[i]));
        }
        return double(peak);
    };
    QVERIFY(loudest(0, sweep.size()) < 0.1001);
    QVERIFY(loudest(0, sweep.size()) > 0.099);
    QVERIFY(loudest(0, 48) < 0.001);
    QVERIFY(loudest(sweep.size() - 48, sweep.size()) < 0.001);
}

void tst_Sweep::isFound_data()
{
    QTest::addColumn<double>("noiseDb");
    QTest::addColumn<double>("gain");
    QTest::newRow("silence") << -120.0 << 1.0;
    QTest::newRow("turned around") << -120.0 << -0.5;
    QTest::newRow("quiet room") << -70.0 << 0.1;
    QTest::newRow("hardly above the last bit") << -120.0 << 0.002;
    QTest::newRow("below the noise") << -35.0 << 0.1;
}

void tst_Sweep::isFound()
{
    QFETCH(double, noiseDb);
    QFETCH(double, gain);
    Sound sound = noise(RecordingSeconds, noiseDb, 7);
    addSweep(sound, BeginsAt, gain);
    const auto match = Sweep::bestMatch(sound, Rate);
    QVERIFY(match);
    QVERIFY2(match->correlation >= Sweep::LeastCorrelation,
             qPrintable(QString::number(match->correlation)));
    QVERIFY2(std::abs(match->atSecond - BeginsAt) < 0.0005,
             qPrintable(QString::number(match->atSecond)));
    const double peakDb = Sweep::PeakDb + decibelsOfAmplitude(std::abs(gain));
    QVERIFY2(std::abs(match->peakDb - peakDb) < 1.0, qPrintable(QString::number(match->peakDb)));
}

// A room: the sound arrives directly, and then many times from the walls.
void tst_Sweep::isFoundInEchoes()
{
    Sound sound = noise(RecordingSeconds, -60, 3);
    addSweep(sound, BeginsAt, 0.05);
    std::mt19937 random(5);
    std::uniform_real_distribution<double> second(0.002, 0.3);
    for (int i = 0; i < 100; ++i) {
        const double later = second(random);
        addSweep(sound, BeginsAt + later, 0.03 * std::exp(-later / 0.08) * (i % 2 == 0 ? 1 : -1));
    }
    const auto match = Sweep::bestMatch(sound, Rate);
    QVERIFY2(match && match->correlation >= Sweep::LeastCorrelation,
             qPrintable(QString::number(match->correlation)));
    QVERIFY(std::abs(match->atSecond - BeginsAt) < 0.005);
}

// Each second sample is lost, and the slopes of the band are steep: a poor headset.
void tst_Sweep::isFoundThroughATelephone()
{
    Sound sound(static_cast<std::size_t>(RecordingSeconds * Rate));
    addSweep(sound, BeginsAt, 0.5);
    constexpr std::size_t Coarse = 6; // 8 kHz
    for (std::size_t i = 0; i < sound.size(); ++i) {
        sound[i] = sound[i - i % Coarse];
    }
    QVERIFY(correlationIn(sound) > 0.9);
}

// A busy machine lost 30 ms in the middle.
void tst_Sweep::isFoundWithAGap()
{
    Sound sound = noise(RecordingSeconds, -70, 9);
    addSweep(sound, BeginsAt, 0.2);
    const auto gap = sound.begin() + static_cast<std::ptrdiff_t>((BeginsAt + 0.5) * Rate);
    sound.erase(gap, gap + Rate * 30 / 1000);
    QVERIFY(correlationIn(sound) >= 1.5 * Sweep::LeastCorrelation);
}

void tst_Sweep::noiseIsNoSweep_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 10; ++seed) {
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
    }
}

void tst_Sweep::noiseIsNoSweep()
{
    QFETCH(unsigned, seed);
    QVERIFY(isFarBelowTheLimit(noise(RecordingSeconds, -20, seed)));
    QVERIFY(isFarBelowTheLimit(rumble(RecordingSeconds, seed)));
}

void tst_Sweep::voiceIsNoSweep_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("counting") << "one two three four five six seven eight nine ten";
    QTest::newRow("vowels") << "aaaaa eeeee iiiii ooooo uuuuu, really? oh no! wow";
    QTest::newRow("sibilants") << "she sells sea shells by the sea shore, yes she does";
}

void tst_Sweep::voiceIsNoSweep()
{
    QFETCH(QString, text);
    const Sound voice = TestSupport::speech(text);
    QVERIFY(voice.size() > Rate);
    QVERIFY(isFarBelowTheLimit(voice));
}

void tst_Sweep::toneIsNoSweep()
{
    for (const double frequency : {50.0, 440.0, 1000.0, 3000.0}) {
        QVERIFY(isFarBelowTheLimit(TestSupport::tone(RecordingSeconds, frequency, -20)));
    }
}

void tst_Sweep::fallingSweepIsNoSweep()
{
    Sound sound(static_cast<std::size_t>(RecordingSeconds * Rate));
    addSweep(sound, BeginsAt, 1);
    std::reverse(sound.begin(), sound.end());
    QVERIFY(correlationIn(sound) < Sweep::LeastCorrelation);
}

void tst_Sweep::tooShortOrSilent()
{
    QVERIFY(!Sweep::bestMatch({}, Rate));
    QVERIFY(!Sweep::bestMatch(Sound(Rate - 1, 0.1F), Rate));
    QVERIFY(!Sweep::bestMatch(Sound(3 * Rate, 0.0F), Rate));
    // A crack and then nothing
    Sound crack(3 * Rate, 0.0F);
    crack[100] = 1.0F;
    QVERIFY(isFarBelowTheLimit(crack));
}

QTEST_GUILESS_MAIN(tst_Sweep)
#include "tst_Sweep.moc"
