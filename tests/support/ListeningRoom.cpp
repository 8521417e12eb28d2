// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/ListeningRoom.h"

#include <QTest>
#include <cmath>

namespace TestSupport {

namespace {

constexpr double BurstSeconds = 0.002;
constexpr double BurstHz = 4000.0;
constexpr double LeadSeconds = 0.3;
constexpr float Threshold = 0.1F;
constexpr double LongestDelayMs = 150.0;

QByteArray load(SoundServer& server, const char* module, const QStringList& arguments)
{
    return server.control(QStringList{QStringLiteral("load-module"), QString::fromLatin1(module)} +
                          arguments);
}

// A device that uses two of the four channels of the room.
QStringList part(const char* kind, const char* name, const char* master, const char* channels)
{
    return {QStringLiteral("%1_name=%2").arg(QLatin1String(kind), QLatin1String(name)),
            QStringLiteral("master=%1").arg(QLatin1String(master)),
            QStringLiteral("channels=2"),
            QStringLiteral("channel_map=front-left,front-right"),
            QStringLiteral("master_channel_map=%1").arg(QLatin1String(channels)),
            QStringLiteral("remix=no")};
}

} // namespace

ListeningRoom::ListeningRoom(SoundServer& server)
{
    const QByteArray room =
        load(server, "module-null-sink",
             {QStringLiteral("norewinds=1"), QStringLiteral("sink_name=room"),
              QStringLiteral("rate=48000"), QStringLiteral("channels=4"),
              QStringLiteral("channel_map=front-left,front-right,rear-left,rear-right")});
    const QByteArray voice = load(server, "module-remap-sink",
                                  part("sink", "room_voice", "room", "front-left,front-right"));
    const QByteArray microphone =
        load(server, "module-remap-source",
             part("source", "room_microphone", "room.monitor", "front-left,front-right"));
    const QByteArray speaker = load(server, "module-remap-sink",
                                    part("sink", "room_speaker", "room", "rear-left,rear-right"));
    m_isBuilt = !room.isEmpty() && !voice.isEmpty() && !microphone.isEmpty() && !speaker.isEmpty();
}

std::vector<double> ListeningRoom::measureDelays(int bursts)
{
    SoundRecording recording(QStringLiteral("room.monitor"),
                             QStringLiteral("front-left,front-right,rear-left,rear-right"));
    if (!recording.waitForStart()) {
        return {};
    }
    std::vector<float> spoken = silence(LeadSeconds + bursts * BurstSpacingSeconds + LeadSeconds);
    const std::vector<float> burst = tone(BurstSeconds, BurstHz, -6.0);
    for (int i = 0; i < bursts; ++i) {
        // At different positions within the blocks of the server.
        const double at = LeadSeconds + i * BurstSpacingSeconds + (i * 37 % 100) * 1e-4;
        std::copy(burst.begin(), burst.end(),
                  spoken.begin() + static_cast<std::ptrdiff_t>(at * SoundRecording::Rate));
    }
    SoundSource source(QStringLiteral("room_voice"), spoken);
    if (!source.waitForEnd()) {
        return {};
    }
    QTest::qWait(static_cast<int>(LongestDelayMs));
    recording.stop();
    const std::vector<float> voice = recording.samples(0);
    const std::vector<float> heard = recording.samples(2);
    std::vector<double> delays;
    std::size_t at = 0;
    while ((at = firstAbove(voice, Threshold, at)) < voice.size()) {
        const std::size_t answer = firstAbove(heard, Threshold, at);
        const double delay = 1000.0 * static_cast<double>(answer - at) / SoundRecording::Rate;
        delays.push_back(answer < heard.size() && delay < LongestDelayMs ? delay : -1.0);
        at += static_cast<std::size_t>(BurstSpacingSeconds / 2.0 * SoundRecording::Rate);
    }
    return delays;
}

} // namespace TestSupport
