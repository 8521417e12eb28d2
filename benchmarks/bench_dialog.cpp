// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "agent/EnvCheckAgent.h"
#include "benchmarks/BenchmarkOptions.h"
#include "benchmarks/DialogPeers.h"
#include "benchmarks/Statistics.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"
#include "platform/devices/DeviceEngine.h"
#include "tests/support/CameraProcess.h"
#include "tests/support/PipeWireServer.h"
#include "tests/support/SoundServer.h"

#include <CoreEngine/CoreEngine.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <array>
#include <cstdio>
#include <functional>
#include <malloc.h>
#include <map>
#include <memory>
#include <unistd.h>
#include <utility>

// The dialog on real devices: how soon it stands there, beside a QWizard of as many widgets of the
// same kinds; how soon it is gone with its streams open; and what it leaves behind.

using TestSupport::SoundServer;

namespace {

constexpr int UsualRounds = 50;
constexpr int OpeningsPerRound = 20;
constexpr int RoundsPerClosing = 5;
constexpr int WarmUpOpenings = 20;
constexpr int OpeningsPerLongOne = 25; // the others don't wait for pictures and sound
constexpr int SettleMs = 30;
constexpr int CalmMs = 1500;
constexpr int IconNamesMs = 31000; // Qt looks through its cache of icons at most every 30 s
constexpr int UsualCacheKb = 10240;
constexpr int TimeoutMs = 10000;
constexpr double MaxRatioToWizard = 1.5;
constexpr double MaxCloseMs = 100.0;
constexpr double MaxGrowthBytes = 512.0;

// An application that knows when a dialog has been painted for the first time: once everything that
// came with its first paint event is done.
class Painter final : public QApplication
{
public:
    using QApplication::QApplication;

    void onceDialogIsPainted(std::function<void()> callback) { m_callback = std::move(callback); }

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (QThread::currentThread() != thread()) {
            return QApplication::notify(receiver, event);
        }
        if (m_callback && event->type() == QEvent::Paint) {
            m_isPainted = m_isPainted || qobject_cast<QDialog*>(
                                             static_cast<QWidget*>(receiver)->window()) != nullptr;
        }
        ++m_depth;
        const bool isHandled = QApplication::notify(receiver, event);
        --m_depth;
        if (m_depth == 0 && m_isPainted) {
            m_isPainted = false;
            std::exchange(m_callback, {})();
        }
        return isHandled;
    }

private:
    std::function<void()> m_callback;
    bool m_isPainted = false;
    int m_depth = 0;
};

QDialog* dialog()
{
    return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

QWidget* widget(const char* name)
{
    QWidget* found = dialog() ? dialog()->findChild<QWidget*>(QLatin1String(name)) : nullptr;
    if (!found) {
        qFatal("The dialog has no %s", name);
    }
    return found;
}

void click(const char* name)
{
    QTest::mouseClick(widget(name), Qt::LeftButton);
}

bool waitFor(const std::function<bool()>& condition, const char* what)
{
    const bool isThere = QTest::qWaitFor(condition, TimeoutMs);
    if (!isThere) {
        std::fprintf(stderr, "Waited in vain for %s\n", what);
    }
    return isThere;
}

void settle(int ms)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::qWait(ms);
}

// Put out by the engine: the one end without a question.
void putOut()
{
    Q_EMIT LumEngine::CoreEngine::instance()->signalKickout();
}

// Runs the dialog, and in it the script, once it stands there.
void runDialog(Painter& application, const std::function<void()>& script)
{
    application.onceDialogIsPainted([script] {
        QTimer::singleShot(0, LumEngine::CoreEngine::instance(), [script] {
            script();
            putOut();
        });
    });
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    EnvCheckAgent::release();
    settle(SettleMs);
}

// ---- Opening

struct Contestant
{
    const char* name;
    std::function<double()> open; // the time that it took, ms
    std::vector<double> times;
    int widgets = 0;
};

bool measureOpening(Painter& application, int rounds)
{
    std::unique_ptr<DialogPeers> peers;
    runDialog(application, [&peers] { peers = std::make_unique<DialogPeers>(*dialog()); });
    QElapsedTimer clock;
    double elapsedMs = 0;
    const auto onPainted = [&clock, &elapsedMs](const std::function<void()>& close) {
        elapsedMs = static_cast<double>(clock.nsecsElapsed()) * 1e-6;
        QTimer::singleShot(0, LumEngine::CoreEngine::instance(), close);
    };
    const auto openOwn = [&] {
        application.onceDialogIsPainted([&] { onPainted(putOut); });
        clock.start();
        EnvCheckAgent::instance()->showEnvCheck(nullptr);
        EnvCheckAgent::release();
        return elapsedMs;
    };
    int widgets = peers->ownCount();
    const auto openPeer = [&](const std::function<std::unique_ptr<QDialog>()>& make) {
        clock.start();
        const std::unique_ptr<QDialog> peer = make();
        application.onceDialogIsPainted([&] { onPainted([&peer] { peer->reject(); }); });
        peer->exec();
        widgets = DialogPeers::widgetCount(*peer);
        return elapsedMs;
    };
    std::array<Contestant, 4> contestants = {{
        {"this dialog", openOwn, {}},
        {"plain widgets, put together in the same order",
         [&] { return openPeer([&] { return peers->makeTwin(); }); },
         {}},
        {"QWizard, the same style sheets",
         [&] { return openPeer([&] { return peers->makeWizard(true); }); },
         {}},
        {"QWizard, no style sheets",
         [&] { return openPeer([&] { return peers->makeWizard(false); }); },
         {}},
    }};
    for (int i = 0; i <= rounds; ++i) {
        for (Contestant& contestant : contestants) {
            const double ms = contestant.open();
            settle(SettleMs);
            contestant.widgets = widgets;
            if (i > 0) { // the first ones load what all need
                contestant.times.push_back(ms);
            }
        }
        widgets = peers->ownCount();
    }
    const double own = Statistics(contestants[0].times).median();
    std::printf("| call to first painted dialog, ms (%d rounds) | widgets | median | p90 | max | "
                "this dialog's share of it |\n|---|---|---|---|---|---|\n",
                rounds);
    for (const Contestant& contestant : contestants) {
        const Statistics times(contestant.times);
        std::printf("| %s | %d | %.1f | %.1f | %.1f | %.2f |\n", contestant.name,
                    contestant.widgets, times.median(), times.p90(), times.maximum(),
                    own / times.median());
    }
    const double ratio = own / Statistics(contestants[2].times).median();
    std::printf("Beside the wizard of the same style sheets: %.2f, at most %.1f\n\n", ratio,
                MaxRatioToWizard);
    return ratio <= MaxRatioToWizard;
}

// ---- Closing

bool isEnabledSoon(const char* name)
{
    const QWidget* found = widget(name);
    return waitFor([found] { return found->isEnabled(); }, name);
}

bool showPictures()
{
    click("label_CameraCheck");
    return isEnabledSoon("Btn_CanSee"); // it is once pictures come
}

bool isListed(SoundServer& server, const char* kind)
{
    return !server.control({QStringLiteral("list"), QStringLiteral("short"), QLatin1String(kind)})
                .isEmpty();
}

bool playSound(SoundServer& server)
{
    click("label_SoundCheck");
    if (!isEnabledSoon("tb_play_test_sound")) {
        return false;
    }
    click("tb_play_test_sound");
    return waitFor([&server] { return isListed(server, "sink-inputs"); }, "the test sound");
}

bool record(SoundServer& server)
{
    click("label_MicCheck");
    if (!isEnabledSoon("Btn_Record")) {
        return false;
    }
    click("Btn_Record");
    return waitFor(
        [&server] { return isListed(server, "sink-inputs") && isListed(server, "source-outputs"); },
        "the listener's streams");
}

bool measureClosing(Painter& application, SoundServer& server, int rounds)
{
    struct Place
    {
        const char* name;
        std::function<bool()> open;
    };
    const std::array<Place, 3> places = {{
        {"camera, pictures arriving", showPictures},
        {"speaker, sound playing", [&server] { return playSound(server); }},
        {"microphone, recording and listening back", [&server] { return record(server); }},
    }};
    std::printf("| close to return, ms (%d closings each) | median | max (at most %.0f) |\n"
                "|---|---|---|\n",
                rounds, MaxCloseMs);
    bool isGood = true;
    for (const Place& place : places) {
        std::vector<double> times;
        for (int i = 0; i < rounds; ++i) {
            QElapsedTimer clock;
            bool isOpen = false;
            application.onceDialogIsPainted([&] {
                QTimer::singleShot(0, LumEngine::CoreEngine::instance(), [&] {
                    isOpen = place.open();
                    clock.start();
                    putOut();
                });
            });
            EnvCheckAgent::instance()->showEnvCheck(nullptr);
            times.push_back(static_cast<double>(clock.nsecsElapsed()) * 1e-6);
            EnvCheckAgent::release();
            settle(SettleMs);
            isGood = isGood && isOpen;
        }
        const Statistics closings(times);
        std::printf("| %s | %.1f | %.1f |\n", place.name, closings.median(), closings.maximum());
        isGood = isGood && closings.maximum() <= MaxCloseMs;
    }
    std::puts("");
    return isGood;
}

// ---- What stays behind

int lineCount(const QByteArray& text)
{
    return text.isEmpty() ? 0 : text.trimmed().count('\n') + 1;
}

QStringList entries(const char* folder)
{
    return QDir(QLatin1String(folder))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
}

// What is open, by descriptor.
std::map<QString, QString> openDescriptors()
{
    std::map<QString, QString> result;
    for (const QString& name : entries("/proc/self/fd")) {
        const QString link = QLatin1String("/proc/self/fd/") + name;
        std::array<char, 256> target{};
        if (readlink(qPrintable(link), target.data(), target.size() - 1) > 0) {
            result[name] = QString::fromLocal8Bit(target.data()); // a socket is no file's path
        }
    }
    return result;
}

int pipeWireClients()
{
    QProcess list;
    list.start(QStringLiteral("pw-cli"), {QStringLiteral("ls"), QStringLiteral("Client")});
    list.waitForFinished(TimeoutMs);
    return list.readAllStandardOutput().count("type PipeWire:Interface:Client");
}

struct Possessions
{
    std::size_t heap = 0;
    std::map<QString, QString> descriptors;
    int threads = 0;
    int streams = 0;
    int soundClients = 0;
    int cameraClients = 0;

    static Possessions ofNow(SoundServer& server, TestSupport::CameraProcess& camera, int calmMs)
    {
        // Qt keeps up to ten megabytes of drawn icons, each opening's anew. Its cache forgets their
        // names by its own timer alone, which clear() would stop.
        QPixmapCache::setCacheLimit(0);
        settle(calmMs);
        QPixmapCache::setCacheLimit(UsualCacheKb);
        camera.readAll(); // what the camera said is no growth of the dialog
        Possessions result;
        const auto list = [&server](const char* kind) {
            return lineCount(server.control(
                {QStringLiteral("list"), QStringLiteral("short"), QLatin1String(kind)}));
        };
        result.streams = list("sink-inputs") + list("source-outputs");
        result.soundClients = list("clients");
        result.cameraClients = pipeWireClients();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        result.descriptors = openDescriptors();
        result.threads = entries("/proc/self/task").size();
        const struct mallinfo2 info = mallinfo2();
        result.heap = info.uordblks + info.hblkhd;
        return result;
    }
};

bool measureLeftovers(Painter& application, SoundServer& server, TestSupport::CameraProcess& camera,
                      int openings, int calmMs)
{
    bool isGood = true;
    const auto openOnce = [&](int number) {
        const bool isLong = number % OpeningsPerLongOne == 0;
        runDialog(application, [&] {
            if (isLong) {
                isGood = showPictures() && playSound(server) && record(server) && isGood;
                return;
            }
            for (const char* label : {"label_CameraCheck", "label_SoundCheck", "label_MicCheck"}) {
                click(label);
                QCoreApplication::processEvents();
            }
        });
    };
    for (int i = 0; i < WarmUpOpenings; ++i) {
        openOnce(i);
    }
    const Possessions before = Possessions::ofNow(server, camera, calmMs);
    for (int i = 0; i < openings; ++i) {
        openOnce(i);
    }
    const Possessions after = Possessions::ofNow(server, camera, calmMs);
    const double growth =
        (static_cast<double>(after.heap) - static_cast<double>(before.heap)) / openings;
    std::printf("| after %d openings | before | after |\n|---|---|---|\n", openings);
    std::printf("| heap, bytes | %zu | %zu (%.0f an opening, at most %.0f) |\n", before.heap,
                after.heap, growth, MaxGrowthBytes);
    const auto row = [&isGood](const char* name, int count, int countAfter) {
        std::printf("| %s | %d | %d |\n", name, count, countAfter);
        isGood = isGood && count == countAfter;
    };
    row("file descriptors", static_cast<int>(before.descriptors.size()),
        static_cast<int>(after.descriptors.size()));
    row("threads", before.threads, after.threads);
    row("sound streams", before.streams, after.streams);
    row("clients of the sound server", before.soundClients, after.soundClients);
    row("clients of the camera server", before.cameraClients, after.cameraClients);
    std::puts("");
    for (const auto& [descriptor, target] : after.descriptors) {
        if (before.descriptors.count(descriptor) == 0) {
            std::printf("Left open: %s, %s\n", qPrintable(descriptor), qPrintable(target));
        }
    }
    return isGood && growth <= MaxGrowthBytes;
}

} // namespace

int main(int argc, char** argv)
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // each table when it is ready
    Painter application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const BenchmarkOptions options(application, UsualRounds);
    SoundServer server(options.server());
    std::unique_ptr<TestSupport::PipeWireServer> cameraServer;
    bool isStarted = server.start();
    if (isStarted && options.server() == SoundServer::Kind::PulseAudio) {
        // The cameras' server keeps the process away from any sound server.
        const QByteArray soundServer = qgetenv("PULSE_SERVER");
        cameraServer = std::make_unique<TestSupport::PipeWireServer>();
        qputenv("PULSE_SERVER", soundServer);
        isStarted = cameraServer->start();
    }
    if (!isStarted) {
        std::fputs("The servers didn't start\n", stderr);
        return 2;
    }
    TestSupport::CameraProcess camera(QStringLiteral("camera"), QStringLiteral("Test Camera"));

    const QTemporaryDir folder;
    Platform::DeviceEngineConfig config;
    config.settingsFolder = folder.path();
    config.cacheFolder = folder.path();
    Platform::EngineRegistry::install(std::make_unique<Platform::DeviceEngine>(config));

    const int rounds = options.rounds();
    bool isGood = measureOpening(application, rounds);
    isGood = measureClosing(application, server, qMax(1, rounds / RoundsPerClosing)) && isGood;
    isGood = measureLeftovers(application, server, camera, rounds * OpeningsPerRound,
                              options.isSmoke() ? CalmMs : IconNamesMs) &&
             isGood;

    Platform::FileWriter::waitForWritten(TimeoutMs);
    Platform::EngineRegistry::uninstall();
    return options.verdict(isGood);
}
