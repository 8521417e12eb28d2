// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/SoundServer.h"

#include <functional>
#include <optional>

class QCoreApplication;

// What the programs that measure sound take:
//     bench_X [--rounds N] [--server pulseaudio|pipewire] [--smoke]
class BenchmarkOptions
{
public:
    // Ends the program with a message where they are wrong.
    BenchmarkOptions(const QCoreApplication& application, int usualRounds);

    int rounds() const { return m_rounds; }
    TestSupport::SoundServer::Kind server() const { return m_server; }
    bool isSmoke() const { return m_isSmoke; }
    // Measures until the machine was quiet, at most a few times, and says how busy it was. The
    // function returns whether the bounds were kept, or nothing if it couldn't measure. Gives the
    // exit code; a machine that was never quiet is not judged.
    int judge(const std::function<std::optional<bool>()>& measure) const;
    // Prints whether the bounds were kept and gives the exit code. A smoke run measures too little
    // to say so.
    int verdict(bool isWithinBounds) const;

private:
    int m_rounds;
    TestSupport::SoundServer::Kind m_server;
    bool m_isSmoke;
};
