// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/TerminationSignals.h"

#include <QCoreApplication>
#include <QMutex>

#include <functional>
#include <windows.h>

namespace {

QMutex theLock;
std::function<void()> theArrival;

// Runs in a thread that the system creates.
BOOL WINAPI wake(DWORD event)
{
    {
        const QMutexLocker locker(&theLock);
        if (!theArrival) {
            return FALSE; // the second one: the system ends the program
        }
        theArrival();
        theArrival = nullptr;
    }
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) {
        // The system ends the program when this returns, or after some seconds.
        Sleep(INFINITE);
    }
    return TRUE;
}

} // namespace

TerminationSignals::TerminationSignals()
{
    const QMutexLocker locker(&theLock);
    theArrival = [this] {
        QMetaObject::invokeMethod(
            this,
            [this] {
                s_haveArrived = true;
                QCoreApplication::quit();
            },
            Qt::QueuedConnection);
    };
    SetConsoleCtrlHandler(&wake, TRUE);
}

TerminationSignals::~TerminationSignals()
{
    SetConsoleCtrlHandler(&wake, FALSE);
    const QMutexLocker locker(&theLock);
    theArrival = nullptr;
}
