// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkOptions.h"

#include "benchmarks/BusyMeter.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <sysexits.h>

using TestSupport::SoundServer;

namespace {

constexpr int SmokeRounds = 2;
constexpr int MinRounds = 2; // the first is often discarded
constexpr int MaxRounds = 100000;
constexpr int MaxAttempts = 3;
constexpr int NotMeasured = 2;
constexpr int NotJudged = 3;

[[noreturn]] void refuse(const char* option, const char* remedy)
{
    std::fprintf(stderr, "%s %s\n", option, remedy);
    std::exit(EX_USAGE);
}

} // namespace

BenchmarkOptions::BenchmarkOptions(const QCoreApplication& application, int usualRounds)
{
    const QCommandLineOption rounds(QStringLiteral("rounds"), QStringLiteral("How often."),
                                    QStringLiteral("N"), QString::number(usualRounds));
    const QCommandLineOption server(QStringLiteral("server"),
                                    QStringLiteral("pulseaudio or pipewire."),
                                    QStringLiteral("KIND"), QStringLiteral("pulseaudio"));
    const QCommandLineOption smoke(
        QStringLiteral("smoke"),
        QStringLiteral("Only see whether it works: few rounds, no verdict."));
    QCommandLineParser parser;
    parser.addOptions({rounds, server, smoke});
    parser.addHelpOption();
    parser.process(application);

    std::setvbuf(stdout, nullptr, _IOLBF, 0); // each table when it is ready
    m_isSmoke = parser.isSet(smoke);
    m_rounds = m_isSmoke ? SmokeRounds : parser.value(rounds).toInt();
    if (m_rounds < MinRounds || m_rounds > MaxRounds) {
        refuse("--rounds", "takes a number from 2 to 100000");
    }
    const QString kind = parser.value(server);
    if (kind != QLatin1String("pulseaudio") && kind != QLatin1String("pipewire")) {
        refuse("--server", "takes pulseaudio or pipewire");
    }
    m_server = kind == QLatin1String("pipewire") ? SoundServer::Kind::PipeWire
                                                 : SoundServer::Kind::PulseAudio;
}

int BenchmarkOptions::judge(const std::function<std::optional<bool>()>& measure) const
{
    for (int attempt = 1;; ++attempt) {
        const BusyMeter busy;
        const std::optional<bool> isWithinBounds = measure();
        if (!isWithinBounds) {
            return NotMeasured;
        }
        std::printf("Machine: threads waited for a processor in %.0f %% of the time.\n",
                    100.0 * busy.share());
        if (m_isSmoke || busy.wasQuiet()) {
            return verdict(*isWithinBounds);
        }
        if (attempt == MaxAttempts) {
            std::puts("NOT JUDGED: the machine was never quiet.");
            return NotJudged;
        }
        std::puts("The machine was busy: once more.");
    }
}

int BenchmarkOptions::verdict(bool isWithinBounds) const
{
    if (m_isSmoke) {
        std::puts("It works; too few rounds to judge it.");
        return EXIT_SUCCESS;
    }
    std::puts(isWithinBounds ? "Within the bounds." : "OUT OF BOUNDS.");
    return isWithinBounds ? EXIT_SUCCESS : EXIT_FAILURE;
}
