// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkOptions.h"

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

int BenchmarkOptions::verdict(bool isWithinBounds) const
{
    if (m_isSmoke) {
        std::puts("It works; too few rounds to judge it.");
        return EXIT_SUCCESS;
    }
    std::puts(isWithinBounds ? "Within the bounds." : "OUT OF BOUNDS.");
    return isWithinBounds ? EXIT_SUCCESS : EXIT_FAILURE;
}
