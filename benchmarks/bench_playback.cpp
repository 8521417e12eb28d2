// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkOptions.h"
#include "benchmarks/HandlerMeter.h"
#include "benchmarks/MonitorEar.h"
#include "benchmarks/Statistics.h"
#include "platform/devices/pulse/PulseSound.h"
#include "platform/devices/sound/Mp3Decoder.h"
#include "platform/devices/sound/SoundBuffer.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/NoListener.h"
#include "tests/support/SoundRecording.h"
#include "tests/support/SoundServer.h"

#include <QCoreApplication>
#include <QMediaPlayer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <cstdio>
#include <functional>
#include <gst/gst.h>

// Measures the delay from the click to the first sample at the monitor of the speaker. The player,
// Qt's player and a plain GStreamer pipeline play in turn on the same server. The file has no
// header that tells the delay of the encoder, because not all of them would skip that delay. So all
// play the same silence before the tone, and it is subtracted.

using namespace Platform;
using TestSupport::SoundServer;

namespace {

using MeteredApplication = HandlerMeter<QCoreApplication>;

constexpr int UsualPlays = 30;
constexpr int TimeoutMs = 8000;
constexpr double MaxRatioToQt = 0.8;
constexpr double MaxRatioToGStreamer = 1.0;
constexpr double MaxP90Ms = 60.0;
constexpr double MaxHandlerMs = 2.0;

struct Contestant
{
    const char* name;
    std::function<void()> play;
    std::function<void()> stop;
    std::vector<double> delays;
    std::vector<double> busy;
};

bool makeSound(const QString& path)
{
    return QProcess::execute(QStringLiteral("ffmpeg"),
                             {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
                              QStringLiteral("lavfi"), QStringLiteral("-i"),
                              QStringLiteral("sine=frequency=1000:duration=2:sample_rate=44100"),
                              QStringLiteral("-ac"), QStringLiteral("2"),
                              QStringLiteral("-write_xing"), QStringLiteral("0"), path}) == 0;
}

double leadMs(const QString& path)
{
    SoundBuffer sound;
    Mp3Decoder::decode(path, 1.0F, sound);
    std::vector<float> samples(sound.size());
    sound.read(0, samples.data(), samples.size());
    const SoundBuffer::Format format = sound.format();
    const auto first = static_cast<double>(TestSupport::firstAbove(samples, MonitorEar::Threshold));
    return 1000.0 * first / (format.rate * format.channels);
}

// One click, inside the event loop like a real one.
bool click(MeteredApplication& application, Contestant& contestant, MonitorEar& ear, double lead,
           bool isCounted)
{
    ear.arm();
    if (!QTest::qWaitFor([&ear] { return ear.isArmed(); }, TimeoutMs)) {
        return false;
    }
    MonitorEar::Clock::time_point clicked;
    application.restart();
    QTimer::singleShot(0, [&] {
        clicked = MonitorEar::Clock::now();
        contestant.play();
    });
    const bool isHeard = QTest::qWaitFor([&ear] { return ear.onset().has_value(); }, TimeoutMs);
    const double busyMs = application.longestMs();
    contestant.stop();
    if (isHeard && isCounted) {
        contestant.delays.push_back(millisecondsBetween(clicked, *ear.onset()) - lead);
        contestant.busy.push_back(busyMs);
    }
    return isHeard;
}

} // namespace

int main(int argc, char** argv)
{
    MeteredApplication application(argc, argv);
    const BenchmarkOptions options(application, UsualPlays);
    const int plays = options.rounds();
    SoundServer server(options.server());
    if (!server.start()) {
        return 2;
    }
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("tone.mp3"));
    if (!makeSound(path)) {
        std::fprintf(stderr, "ffmpeg can't make the sound\n");
        return 2;
    }
    const double lead = leadMs(path);
    std::printf("The file has %.1f ms of silence before the tone.\n", lead);
    gst_init(&argc, &argv);

    TestSupport::MemoryReport report;
    PulseSound sound(report);
    TestSupport::NoListener listener;
    const std::unique_ptr<SpeakerBackend> speaker = sound.createSpeaker(listener);
    std::unique_ptr<PlayerBackend> player;
    std::unique_ptr<QMediaPlayer> qtPlayer;
    GstElement* pipeline = nullptr;
    const QByteArray description =
        "filesrc location=" + QFile::encodeName(path) +
        " ! mpegaudioparse ! mpg123audiodec ! audioconvert ! audioresample ! pulsesink";
    std::vector<Contestant> contestants{
        {"this program",
         [&] { player = sound.createPlayer(path, 1.0F, listener); },
         [&] { player.reset(); },
         {},
         {}},
        {"QMediaPlayer",
         [&] {
             qtPlayer = std::make_unique<QMediaPlayer>();
             qtPlayer->setMedia(QUrl::fromLocalFile(path));
             qtPlayer->play();
         },
         [&] { qtPlayer.reset(); },
         {},
         {}},
        {"GStreamer pipeline",
         [&] {
             pipeline = gst_parse_launch(description.constData(), nullptr);
             gst_element_set_state(pipeline, GST_STATE_PLAYING);
         },
         [&] {
             gst_element_set_state(pipeline, GST_STATE_NULL);
             gst_object_unref(pipeline);
         },
         {},
         {}},
    };

    MonitorEar ear(QStringLiteral("speaker_a.monitor"));
    for (int i = 0; i < plays; ++i) {
        for (Contestant& contestant : contestants) {
            if (!click(application, contestant, ear, lead, i > 0)) {
                std::fprintf(stderr, "%s was not heard\n", contestant.name);
                return 2;
            }
        }
    }

    const Statistics own(contestants[0].delays);
    std::printf(
        "| click to sound, ms (%d plays) | median | p90 | max | GUI thread kept, ms: median "
        "| max | ratio of medians |\n|---|---|---|---|---|---|---|\n",
        plays - 1);
    for (const Contestant& contestant : contestants) {
        const Statistics delays(contestant.delays);
        const Statistics busy(contestant.busy);
        std::printf("| %s | %.1f | %.1f | %.1f | %.2f | %.2f | %.2f |\n", contestant.name,
                    delays.median(), delays.p90(), delays.maximum(), busy.median(), busy.maximum(),
                    own.median() / delays.median());
    }
    const double qt = Statistics(contestants[1].delays).median();
    const double gstreamer = Statistics(contestants[2].delays).median();
    const bool isGood = own.median() <= MaxRatioToQt * qt &&
                        own.median() <= MaxRatioToGStreamer * gstreamer && own.p90() <= MaxP90Ms &&
                        Statistics(contestants[0].busy).median() <= MaxHandlerMs;
    return options.verdict(isGood);
}
