// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "agent/EnvCheckAgent.h"
#include "benchmarks/BenchmarkOptions.h"
#include "benchmarks/CalmHeap.h"
#include "benchmarks/DialogStage.h"
#include "benchmarks/ProcessorClock.h"
#include "benchmarks/Statistics.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/devices/network/ProbeWindow.h"
#include "platform/scripted/ScriptedEngine.h"

#include <QComboBox>
#include <QDialog>
#include <QEventLoop>
#include <QTimer>
#include <cstdio>
#include <memory>
#include <vector>

// How the costs of the check grow, on scripted devices: with the devices in a list, the changes of
// a list, the openings of the dialog and the probes of the network. Times are those of the GUI
// thread's processor, which a busy machine hardly changes.

using namespace DialogStage;
using Platform::DeviceInfo;
using Platform::ScriptedEngine;

namespace {

constexpr int UsualRounds = 5;
constexpr int WarmUpOpenings = 20;
constexpr int SmokeCalmMs = 500;
constexpr int SmokeSteps = 2;            // of each curve
constexpr double MaxRatioToBox = 3.0;    // a change of 1,000 devices and more beside a QComboBox
constexpr double MaxGrowthBytes = 512.0; // an opening
constexpr double MaxShareOfCore = 25.0;  // percent, 1,000 changes a second
constexpr double MaxProbeUs = 50.0;

DeviceInfo speaker(int number)
{
    return {QStringLiteral("speaker-%1").arg(number), QStringLiteral("Loudspeaker %1").arg(number)};
}

ScriptedEngine& install(int speakers)
{
    ScriptedEngine& engine = ScriptedEngine::install();
    for (int i = 0; i < speakers; ++i) {
        engine.scriptedSpeakers().plug(speaker(i));
    }
    return engine;
}

// Everything that is under way in the event loop.
void processAll()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

class Growth
{
public:
    Growth(Application& application, const BenchmarkOptions& options)
        : m_application(application), m_options(options)
    {
    }

    bool measure()
    {
        const bool areListsGood = measureDevices();
        const bool areChangesGood = measureChanges();
        const bool areOpeningsGood = measureOpenings();
        return measureProbes() && areListsGood && areChangesGood && areOpeningsGood;
    }

private:
    // 1, 10, 100 ...
    std::vector<int> steps(int first, int last) const
    {
        std::vector<int> result;
        for (int step = first; step <= last; step *= 10) {
            result.push_back(step);
        }
        result.resize(m_options.isSmoke() ? SmokeSteps : result.size());
        return result;
    }

    bool measureDevices();
    bool measureChanges();
    bool measureOpenings();
    bool measureProbes() const;

    Application& m_application;
    const BenchmarkOptions& m_options;
};

double fillBoxMs(int entries)
{
    QComboBox box;
    for (int i = 0; i < entries; ++i) {
        box.addItem(speaker(i).name);
    }
    const ProcessorClock clock(ProcessorClock::Of::Thread);
    box.clear();
    for (int i = 0; i < entries; ++i) {
        box.addItem(speaker(i).name, speaker(i).id);
    }
    return clock.elapsedMs();
}

bool Growth::measureDevices()
{
    std::puts("| speakers in the list | the step opens, ms of processor | one is renamed, ms | "
              "QComboBox filled anew, ms | ratio |\n|---|---|---|---|---|");
    bool isGood = true;
    for (const int count : steps(1, 10000)) {
        ScriptedEngine& engine = install(count);
        double openMs = 0;
        std::vector<double> renames;
        std::vector<double> boxes;
        runDialog(m_application, [&] {
            const ProcessorClock opening(ProcessorClock::Of::Thread);
            click("label_SoundCheck");
            processAll();
            openMs = opening.elapsedMs();
            for (int i = 0; i < m_options.rounds(); ++i) {
                engine.scriptedSpeakers().rename(speaker(0).id, QStringLiteral("Name %1").arg(i));
                const ProcessorClock renaming(ProcessorClock::Of::Thread);
                processAll();
                renames.push_back(renaming.elapsedMs());
                boxes.push_back(fillBoxMs(count));
            }
        });
        const double ownMs = Statistics(renames).median();
        const double boxMs = Statistics(boxes).median();
        std::printf("| %d | %.2f | %.3f | %.3f | %.2f |\n", count, openMs, ownMs, boxMs,
                    ownMs / boxMs);
        isGood = isGood && (count < 1000 || ownMs <= MaxRatioToBox * boxMs);
    }
    std::puts("");
    return isGood;
}

bool Growth::measureChanges()
{
    constexpr int Devices = 20;
    constexpr int MeasureMs = 2000;
    std::puts("| changes of a list of 20 a second | came | share of a core, % |\n|---|---|---|");
    double share = 0;
    for (const int perSecond : steps(1, 1000)) {
        ScriptedEngine& engine = install(Devices);
        int changes = 0;
        runDialog(m_application, [&] {
            click("label_SoundCheck");
            processAll();
            QTimer timer;
            timer.setTimerType(Qt::PreciseTimer);
            QObject::connect(&timer, &QTimer::timeout, [&] {
                engine.scriptedSpeakers().rename(speaker(changes % Devices).id,
                                                 QStringLiteral("Name %1").arg(changes));
                ++changes;
            });
            timer.start(1000 / perSecond);
            const ProcessorClock clock(ProcessorClock::Of::Thread);
            QEventLoop loop; // qWait() sleeps between two rounds
            QTimer::singleShot(MeasureMs, &loop, &QEventLoop::quit);
            loop.exec();
            share = 100.0 * clock.elapsedMs() / MeasureMs;
        });
        std::printf("| %d | %d | %.2f |\n", perSecond, changes, share);
    }
    std::puts("");
    return share <= MaxShareOfCore;
}

std::size_t heapBytes(int calmMs)
{
    CalmHeap::dropIcons(calmMs);
    return CalmHeap::bytes();
}

bool Growth::measureOpenings()
{
    ScriptedEngine& engine = install(1);
    const auto openOnce = [this, &engine] {
        runDialog(m_application, visitDevicePages);
        engine.clearCalls(); // its log, which no other engine has
    };
    openOnce();
    std::puts("| openings | heap, KB | growth, bytes an opening |\n|---|---|---|");
    const int calmMs = m_options.isSmoke() ? SmokeCalmMs : CalmHeap::IconNamesMs;
    const std::size_t before = heapBytes(calmMs);
    double growth = 0;
    int openings = 0;
    for (const int count : steps(1, 1000)) {
        for (; openings < count; ++openings) {
            openOnce();
        }
        const std::size_t now = heapBytes(calmMs);
        growth = (static_cast<double>(now) - static_cast<double>(before)) / count;
        std::printf("| %d | %.0f | %.0f |\n", count, static_cast<double>(now) / 1024, growth);
    }
    std::puts("");
    return growth <= MaxGrowthBytes;
}

// The window over which delay, jitter and loss are counted; ten probes a second.
bool Growth::measureProbes() const
{
    using Time = Platform::ProbeWindow::Time;
    std::puts("| probes | all, ms of processor | us each |\n|---|---|---|");
    double eachUs = 0;
    for (const int count : steps(10, 100000)) {
        Platform::ProbeWindow window;
        const ProcessorClock clock(ProcessorClock::Of::Thread);
        double delays = 0;
        for (int i = 0; i < count; ++i) {
            const Time sent = i * Time(100000);
            window.addAnswer(window.addProbe(sent), sent + Time(20000 + i % 7));
            delays += window.figures(sent + Time(50000)).delayMs;
        }
        const double ms = clock.elapsedMs();
        eachUs = 1000.0 * ms / count;
        std::printf("| %d | %.2f | %.2f |\n", count, ms, eachUs);
        if (!(delays > 0)) {
            return false;
        }
    }
    std::puts("");
    return eachUs <= MaxProbeUs;
}

} // namespace

int main(int argc, char** argv)
{
    Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const BenchmarkOptions options(application, UsualRounds);
    const int exitCode = options.judge(
        [&]() -> std::optional<bool> { return Growth(application, options).measure(); });
    Platform::EngineRegistry::uninstall();
    return exitCode;
}
