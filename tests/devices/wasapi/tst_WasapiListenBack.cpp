// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundMath.h"
#include "platform/devices/wasapi/WasapiCapture.h"
#include "platform/devices/wasapi/WasapiThread.h"
#include "tests/devices/wasapi/CaptureOpening.h"
#include "tests/devices/wasapi/NativeSound.h"
#include "tests/devices/wasapi/WasapiEndpoint.h"

#include <QTest>
#include <algorithm>
#include <cmath>
#include <memory>

using namespace Platform;
using TestSupport::NativeRecording;
using TestSupport::NativeSoundServer;
using TestSupport::NativeSource;
using TestSupport::SoundRate;

namespace {

constexpr int TimeoutMs = 10000;
// Wine on a busy machine needs half of it.
constexpr double MaxDelayMs = 120.0;
// If the buffer runs empty with each packet, there are a hundred in a second.
constexpr std::size_t MaxGaps = 60;
constexpr double ToneHz = 440.0;
constexpr double SpacingSeconds = 0.25;
constexpr double VoiceSeconds = 4.0;
constexpr std::size_t MinBursts = 10;
constexpr int Attempts = 5;
constexpr float Burst = 0.2F;
constexpr int SpeakerChannel = 0;
constexpr int VoiceChannel = 2;

// A soft tone, which shows gaps, with loud bursts, which show the delay.
std::vector<float> voice()
{
    std::vector<float> result = TestSupport::tone(VoiceSeconds, ToneHz, -30.0);
    const auto spacing = static_cast<std::size_t>(SpacingSeconds * SoundRate);
    const std::vector<float> burst = TestSupport::tone(0.005, 2 * ToneHz, -8.0);
    for (std::size_t at = spacing; at + spacing < result.size(); at += spacing) {
        std::copy(burst.begin(), burst.end(), result.begin() + std::ptrdiff_t(at));
    }
    return result;
}

// From each burst of the voice to the same in the speaker, in ms.
std::vector<double> delays(const std::vector<float>& said, const std::vector<float>& heard)
{
    const auto spacing = static_cast<std::size_t>(SpacingSeconds * SoundRate);
    std::vector<double> result;
    for (std::size_t at = TestSupport::firstAbove(said, Burst); at + spacing < said.size();
         at = TestSupport::firstAbove(said, Burst, at + spacing / 2)) {
        const std::size_t answer = TestSupport::firstAbove(heard, Burst, at);
        if (answer < at + spacing) {
            result.push_back(1000.0 * double(answer - at) / SoundRate);
        }
    }
    return result;
}

// Milliseconds of silence within the sound, in pieces longer than half a wave.
std::vector<double> gapsMs(const std::vector<float>& heard)
{
    constexpr float Silent = 0.001F;
    constexpr std::size_t Shortest = SoundRate / 1000;
    const std::size_t first = TestSupport::firstAbove(heard, Burst);
    std::size_t end = heard.size();
    while (end > first && std::abs(heard[end - 1]) < Burst) {
        --end;
    }
    std::vector<double> result;
    for (std::size_t i = first; i < end;) {
        const std::size_t next = TestSupport::firstAbove(heard, Silent, i);
        if (next - i > Shortest) {
            result.push_back(1000.0 * double(next - i) / SoundRate);
        }
        i = std::max(next, i) + 1;
    }
    return result;
}

} // namespace

// Under Wine, on devices of a real sound server that have one clock.
class tst_WasapiListenBack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_server.start());
        QVERIFY(m_server.plugBus());
        m_microphone = TestSupport::microphoneCalled(QStringLiteral("Bus Microphone"));
        m_speaker = TestSupport::speakerCalled(QStringLiteral("Bus Speaker"));
        QVERIFY(!m_microphone.isEmpty() && !m_speaker.isEmpty());
    }

    void cleanup() { QTRY_COMPARE_WITH_TIMEOUT(WasapiThread::count(), 0, TimeoutMs); }

    // Wine hands 10 ms at a time to the server, which tears the sound on a busy machine.
    void delayAndGaps()
    {
        QString fault;
        for (int attempt = 0; attempt < Attempts; ++attempt) {
            listen(fault);
            if (fault.isEmpty()) {
                return;
            }
        }
        QFAIL(qPrintable(fault));
    }

private:
    void listen(QString& fault) const
    {
        fault = QStringLiteral("It isn't heard");
        NativeRecording recording(QStringLiteral("bus.monitor"), 4);
        QVERIFY(recording.waitForStart());
        WasapiCapture capture;
        capture.listenOn(m_speaker);
        const TestSupport::CaptureOpening opening(capture, m_microphone);
        const NativeSource source(QStringLiteral("bus_voice"), voice());
        const double until = recording.seconds() + VoiceSeconds + 0.5;
        QTRY_VERIFY_WITH_TIMEOUT(recording.seconds() > until, int(VoiceSeconds * 1000) + TimeoutMs);
        capture.close();
        judge(recording.samples(VoiceChannel), recording.samples(SpeakerChannel), fault);
    }

    static void judge(const std::vector<float>& said, const std::vector<float>& heard,
                      QString& fault)
    {
        std::vector<double> all = delays(said, heard);
        if (all.size() < MinBursts) {
            fault = QStringLiteral("Of %1 s of voice, %2 s are recorded and %3 bursts heard")
                        .arg(VoiceSeconds)
                        .arg(double(said.size()) / SoundRate)
                        .arg(all.size());
            qInfo("%s", qPrintable(fault));
            return;
        }
        std::sort(all.begin(), all.end());
        const double median = all[all.size() / 2];
        const std::size_t gaps = gapsMs(heard).size();
        const QString figures = QStringLiteral("delay %1 to %2 ms, median %3; %4 gaps")
                                    .arg(all.front(), 0, 'f', 1)
                                    .arg(all.back(), 0, 'f', 1)
                                    .arg(median, 0, 'f', 1)
                                    .arg(gaps);
        qInfo("%s", qPrintable(figures));
        fault = median <= MaxDelayMs && gaps <= MaxGaps ? QString() : figures;
    }

    NativeSoundServer m_server;
    QString m_microphone;
    QString m_speaker;
};

QTEST_GUILESS_MAIN(tst_WasapiListenBack)
#include "tst_WasapiListenBack.moc"
