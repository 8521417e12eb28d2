// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkOptions.h"
#include "benchmarks/HandlerMeter.h"
#include "benchmarks/MonitorEar.h"
#include "benchmarks/Statistics.h"
#include "platform/devices/pulse/PulseSound.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/NoListener.h"
#include "tests/support/SoundServer.h"

#include <QCoreApplication>
#include <QFile>
#include <QMediaPlayer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <cstdio>
#include <functional>
#include <gst/gst.h>
#include <memory>
#include <optional>

// Measures what a listener hears: from the click to the first audible sample at the monitor of the
// speaker. The player, Qt's player and a plain GStreamer pipeline play in turn on the same server:
// a sound of the check, and a tone without silence before it. Nothing is subtracted.

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

// The bytes of the MPEG-1 layer III frame that begins here.
int frameBytes(const QByteArray& stream, int at)
{
    constexpr int ThousandBits[] = {0,   32,  40,  48,  56,  64,  80,  96,
                                    112, 128, 160, 192, 224, 256, 320, 0};
    constexpr int Rate = 44100;
    const auto third = static_cast<uchar>(stream.at(at + 2));
    return 144 * ThousandBits[third >> 4] * 1000 / Rate + ((third >> 1) & 1);
}

// Every encoder begins with silence. Without its first frames, the file begins inside the tone.
bool makeTone(const QString& path)
{
    constexpr int SilentFrames = 4;
    constexpr int HeaderBytes = 4;
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
                 {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
                  QStringLiteral("lavfi"), QStringLiteral("-i"),
                  QStringLiteral("sine=frequency=1000:duration=2:sample_rate=44100"),
                  QStringLiteral("-ac"), QStringLiteral("2"), QStringLiteral("-b:a"),
                  QStringLiteral("128k"), QStringLiteral("-reservoir"), QStringLiteral("0"),
                  QStringLiteral("-write_xing"), QStringLiteral("0"),
                  QStringLiteral("-id3v2_version"), QStringLiteral("0"), QStringLiteral("-f"),
                  QStringLiteral("mp3"), QStringLiteral("-")});
    ffmpeg.waitForFinished();
    const QByteArray stream = ffmpeg.readAllStandardOutput();
    int begin = 0;
    for (int frame = 0; frame < SilentFrames && begin + HeaderBytes < stream.size(); ++frame) {
        begin += frameBytes(stream, begin);
    }
    QFile file(path);
    return begin + HeaderBytes < stream.size() && file.open(QIODevice::WriteOnly) &&
           file.write(stream.mid(begin)) > 0;
}

// One click, inside the event loop like a real one.
bool click(MeteredApplication& application, Contestant& contestant, MonitorEar& ear, bool isCounted)
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
        contestant.delays.push_back(millisecondsBetween(clicked, *ear.onset()));
        contestant.busy.push_back(busyMs);
    }
    return isHeard;
}

struct Stage
{
    MeteredApplication& application;
    PulseSound& sound;
    MonitorEar& ear;
};

std::vector<Contestant> contestantsFor(const QString& path, PulseSound& sound)
{
    const auto player = std::make_shared<std::unique_ptr<PlayerBackend>>();
    const auto listener = std::make_shared<TestSupport::NoListener>();
    const auto qtPlayer = std::make_shared<std::unique_ptr<QMediaPlayer>>();
    const auto pipeline = std::make_shared<GstElement*>(nullptr);
    const QByteArray description =
        "filesrc location=" + QFile::encodeName(path) +
        " ! mpegaudioparse ! mpg123audiodec ! audioconvert ! audioresample ! pulsesink";
    return {
        {"this program",
         [=, &sound] { *player = sound.createPlayer(path, 1.0F, *listener); },
         [=] { player->reset(); },
         {},
         {}},
        {"QMediaPlayer",
         [=] {
             *qtPlayer = std::make_unique<QMediaPlayer>();
             (*qtPlayer)->setMedia(QUrl::fromLocalFile(path));
             (*qtPlayer)->play();
         },
         [=] { qtPlayer->reset(); },
         {},
         {}},
        {"GStreamer pipeline",
         [=] {
             *pipeline = gst_parse_launch(description.constData(), nullptr);
             gst_element_set_state(*pipeline, GST_STATE_PLAYING);
         },
         [=] {
             gst_element_set_state(*pipeline, GST_STATE_NULL);
             gst_object_unref(*pipeline);
         },
         {},
         {}},
    };
}

bool print(const char* name, const std::vector<Contestant>& contestants)
{
    const Statistics own(contestants[0].delays);
    std::printf("%s\n\n| click to first audible sample, ms (%zu plays) | median | p10 | p90 | max "
                "| GUI thread kept, ms: median | max | ratio of medians |\n"
                "|---|---|---|---|---|---|---|---|\n",
                name, own.count());
    for (const Contestant& contestant : contestants) {
        const Statistics delays(contestant.delays);
        const Statistics busy(contestant.busy);
        std::printf("| %s | %.1f | %.1f | %.1f | %.1f | %.2f | %.2f | %.2f |\n", contestant.name,
                    delays.median(), delays.p10(), delays.p90(), delays.maximum(), busy.median(),
                    busy.maximum(), own.median() / delays.median());
    }
    std::puts("");
    const double qt = Statistics(contestants[1].delays).median();
    const double gstreamer = Statistics(contestants[2].delays).median();
    return own.median() <= MaxRatioToQt * qt && own.median() <= MaxRatioToGStreamer * gstreamer &&
           own.p90() <= MaxP90Ms && Statistics(contestants[0].busy).median() <= MaxHandlerMs;
}

// Nothing if somebody was not heard.
std::optional<bool> measure(const char* name, const QString& path, int plays, const Stage& stage)
{
    std::vector<Contestant> contestants = contestantsFor(path, stage.sound);
    for (int i = 0; i < plays; ++i) {
        for (Contestant& contestant : contestants) {
            if (!click(stage.application, contestant, stage.ear, i > 0)) {
                std::fprintf(stderr, "%s was not heard\n", contestant.name);
                return {};
            }
        }
    }
    return print(name, contestants);
}

} // namespace

int main(int argc, char** argv)
{
    MeteredApplication application(argc, argv);
    const BenchmarkOptions options(application, UsualPlays);
    SoundServer server(options.server());
    if (!server.start()) {
        return 2;
    }
    const QTemporaryDir folder;
    const QString tone = folder.filePath(QStringLiteral("tone.mp3"));
    if (!makeTone(tone)) {
        std::fprintf(stderr, "ffmpeg can't make the sound\n");
        return 2;
    }
    const QString doorbell =
        QStringLiteral(ENVCHECK_SOURCE_DIR) + QStringLiteral("/share/sounds/Doorbell.mp3");
    gst_init(&argc, &argv);
    TestSupport::MemoryReport report;
    PulseSound sound(report);
    TestSupport::NoListener listener;
    const std::unique_ptr<SpeakerBackend> speaker = sound.createSpeaker(listener);
    MonitorEar ear(QStringLiteral("speaker_a.monitor"));
    const Stage stage{application, sound, ear};
    return options.judge([&]() -> std::optional<bool> {
        const auto ofCheck = measure("A sound of the check", doorbell, options.rounds(), stage);
        const auto ofTone = measure("A tone without silence", tone, options.rounds(), stage);
        return ofCheck && ofTone ? std::make_optional(*ofCheck && *ofTone) : std::nullopt;
    });
}
