// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/wasapi/ListenBackMeter.h"

#include "tests/support/SoundRecording.h"

#include <QTest>
#include <algorithm>
#include <cmath>

namespace TestSupport {

namespace {

constexpr int TimeoutMs = 10000;
constexpr double ToneHz = 440.0;
constexpr double SpacingSeconds = 0.25;
constexpr double TailSeconds = 0.5; // until the last of it is heard
constexpr float Burst = 0.2F;
constexpr int SpeakerChannel = 0;
constexpr int VoiceChannel = 2;
constexpr int PieceMs = 200; // Wine's work for shorter ones tears the sound that is measured
constexpr auto Spacing = static_cast<std::size_t>(SpacingSeconds * SoundRate);

// A soft tone, which shows gaps, with loud bursts, which show the delay.
std::vector<float> voice(double seconds)
{
    std::vector<float> result = tone(seconds, ToneHz, -30.0);
    const std::vector<float> burst = tone(0.005, 2 * ToneHz, -8.0);
    for (std::size_t at = Spacing; at + Spacing < result.size(); at += Spacing) {
        std::copy(burst.begin(), burst.end(), result.begin() + std::ptrdiff_t(at));
    }
    return result;
}

// From each burst of the voice to the same in the speaker, in ms.
std::vector<double> delays(const std::vector<float>& said, const std::vector<float>& heard)
{
    std::vector<double> result;
    for (std::size_t at = firstAbove(said, Burst); at + Spacing < said.size();
         at = firstAbove(said, Burst, at + Spacing / 2)) {
        const std::size_t answer = firstAbove(heard, Burst, at);
        if (answer < at + Spacing) {
            result.push_back(1000.0 * double(answer - at) / SoundRate);
        }
    }
    std::sort(result.begin(), result.end());
    return result;
}

// Silence within the sound, in pieces longer than half a wave.
void findGaps(const std::vector<float>& heard, ListenBackFigures& figures)
{
    constexpr float Silent = 0.001F;
    constexpr std::size_t Shortest = SoundRate / 1000;
    const std::size_t first = firstAbove(heard, Burst);
    std::size_t end = heard.size();
    while (end > first && std::abs(heard[end - 1]) < Burst) {
        --end;
    }
    for (std::size_t i = first; i < end;) {
        const std::size_t next = firstAbove(heard, Silent, i);
        if (next - i > Shortest) {
            figures.gapsMs.push_back(1000.0 * double(next - i) / SoundRate);
            figures.gapsSeconds.push_back(double(i) / SoundRate);
        }
        i = next + 1;
    }
}

} // namespace

QString ListenBackFigures::toString() const
{
    QString result = QStringLiteral("%1 bursts, delay %2 to %3 ms, median %4; %5 gaps")
                         .arg(delaysMs.size())
                         .arg(delaysMs.front(), 0, 'f', 1)
                         .arg(delaysMs.back(), 0, 'f', 1)
                         .arg(medianMs(), 0, 'f', 1)
                         .arg(gapsMs.size());
    for (std::size_t i = 0; i < gapsMs.size(); ++i) {
        result += QStringLiteral("%1 %2 ms at %3 s")
                      .arg(i == 0 ? QLatin1String(":") : QLatin1String(","))
                      .arg(gapsMs[i], 0, 'f', 1)
                      .arg(gapsSeconds[i], 0, 'f', 1);
    }
    return result;
}

std::optional<ListenBackFigures> ListenBackMeter::measure(double seconds)
{
    SoundRecording recording(QStringLiteral("bus.monitor"),
                             QStringLiteral("front-left,front-right,rear-left,rear-right"),
                             PieceMs);
    if (!recording.waitForStart()) {
        return std::nullopt;
    }
    const SoundSource source(QStringLiteral("bus_voice"), voice(seconds));
    const double until = recording.seconds() + seconds + TailSeconds;
    if (!QTest::qWaitFor([&] { return recording.seconds() > until; },
                         int(seconds * 1000) + TimeoutMs)) {
        return std::nullopt;
    }
    const std::vector<float> heard = recording.samples(SpeakerChannel);
    ListenBackFigures figures;
    figures.delaysMs = delays(recording.samples(VoiceChannel), heard);
    findGaps(heard, figures);
    const bool isHeard = double(figures.delaysMs.size()) * SpacingSeconds > seconds / 2;
    return isHeard ? std::make_optional(figures) : std::nullopt;
}

} // namespace TestSupport
