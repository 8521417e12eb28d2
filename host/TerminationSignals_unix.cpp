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

constexpr std::array<int, 2> Signals = {SIGINT, SIGTERM};
std::array<int, 2> thePipe = {-1, -1}; // reading end, writing end

// A signal handler may do almost nothing: one byte wakes the event loop.
void wake(int)
{
    const char byte = 0;
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
        m_haveArrived = true;
        QCoreApplication::quit();
    });
    m_watch = std::move(notifier);
    struct sigaction action = {};
    action.sa_handler = wake;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (const int signal : Signals) {
        sigaction(signal, &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals()
{
    for (const int signal : Signals) {
        std::signal(signal, SIG_DFL);
    }
    m_watch.reset();
    close(thePipe[0]);
    close(thePipe[1]);
}
