// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkOptions.h"
#include "benchmarks/CalmHeap.h"
#include "benchmarks/DialogClosing.h"
#include "benchmarks/DialogLeftovers.h"
#include "benchmarks/DialogOpening.h"
#include "benchmarks/DialogRest.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/FileWriter.h"
#include "platform/devices/DeviceEngine.h"
#include "tests/support/CameraProcess.h"
#include "tests/support/PipeWireServer.h"
#include "tests/support/SoundServer.h"

#include <QTemporaryDir>
#include <cstdio>
#include <memory>

// The dialog on real devices: how fast it opens, beside a QWizard of as many widgets of the same
// kinds; what its pages take at rest; how fast it closes with its streams open; and what it leaves
// behind.

using TestSupport::SoundServer;

namespace {

constexpr int UsualRounds = 50;
constexpr int OpeningsPerRound = 20;
constexpr int RoundsPerClosing = 2;
constexpr int CalmMs = 1500;
constexpr int RestMs = 5000; // of each page
constexpr int SmokeRestMs = 200;

} // namespace

int main(int argc, char** argv)
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // each table when it is ready
    DialogStage::Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const BenchmarkOptions options(application, UsualRounds);
    SoundServer server(options.server());
    std::unique_ptr<TestSupport::PipeWireServer> cameraServer;
    bool isStarted = server.start();
    if (isStarted && options.server() == SoundServer::Kind::PulseAudio) {
        // Starting the cameras' server changes this variable.
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
    const int exitCode = options.judge([&]() -> std::optional<bool> {
        bool isGood = measureOpening(application, rounds);
        isGood = measureRest(application, options.isSmoke() ? SmokeRestMs : RestMs) && isGood;
        isGood = measureClosing(application, server, qMax(1, rounds / RoundsPerClosing)) && isGood;
        return measureLeftovers(application, server, camera, rounds * OpeningsPerRound,
                                options.isSmoke() ? CalmMs : CalmHeap::IconNamesMs) &&
               isGood;
    });
    Platform::FileWriter::waitForWritten(DialogStage::TimeoutMs);
    Platform::EngineRegistry::uninstall();
    return exitCode;
}
