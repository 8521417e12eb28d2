// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/TerminationSignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array<int, 3> Signals = {SIGINT, SIGTERM, SIGHUP};
std::array<int, 2> thePipe = {-1, -1}; // reading end, writing end

// A signal handler may do almost nothing: one byte wakes the event loop.
void wake(int signal)
{
    const char byte = static_cast<char>(signal);
    const auto written = write(thePipe[1], &byte, 1);
    static_cast<void>(written);
}

int openedPipe()
{
    if (pipe2(thePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qFatal("The program can't watch for signals: no pipe can be made");
    }
    return thePipe[0];
}

} // namespace

TerminationSignals::TerminationSignals()
{
    auto notifier = std::make_unique<QSocketNotifier>(openedPipe(), QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, [this, raw = notifier.get()] {
        raw->setEnabled(false);
        char signal = 0;
        m_hasTerminalClosed = read(thePipe[0], &signal, 1) == 1 && signal == SIGHUP;
        s_haveArrived = true;
        QCoreApplication::quit();
    });
    m_watch = std::move(notifier);
    struct sigaction action = {};
    action.sa_handler = wake;
    for (const int signal : Signals) {
        // A terminal that closes says so twice: by its shell and by the system.
        action.sa_flags =
            static_cast<int>(signal == SIGHUP ? SA_RESTART : SA_RESTART | SA_RESETHAND);
        struct sigaction before = {};
        sigaction(signal, nullptr, &before);
        if (signal != SIGHUP || before.sa_handler != SIG_IGN) { // nohup has it ignored
            sigaction(signal, &action, nullptr);
        }
    }
}

TerminationSignals::~TerminationSignals()
{
    for (const int signal : Signals) {
        std::signal(signal, signal == SIGHUP ? SIG_IGN : SIG_DFL);
    }
    m_watch.reset();
    close(thePipe[0]);
    close(thePipe[1]);
}
