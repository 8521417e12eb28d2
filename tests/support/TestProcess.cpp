// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/TestProcess.h"

#include <csignal>
#include <sys/prctl.h>

namespace TestSupport {

namespace {

constexpr int EndTimeoutMs = 2000;

} // namespace

TestProcess::TestProcess(QObject* parent) : QProcess(parent)
{
    setProcessChannelMode(QProcess::MergedChannels);
}

TestProcess::~TestProcess()
{
    end();
}

void TestProcess::sendSignal(int number) const
{
    if (state() == QProcess::Running) {
        ::kill(static_cast<pid_t>(processId()), number);
    }
}

void TestProcess::end()
{
    if (state() == QProcess::NotRunning) {
        return;
    }
    sendSignal(SIGCONT);
    terminate();
    if (!waitForFinished(EndTimeoutMs)) {
        kill();
        waitForFinished(EndTimeoutMs);
    }
}

void TestProcess::setupChildProcess()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
}

} // namespace TestSupport
