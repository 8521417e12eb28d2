// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMutex>
#include <thread>

// On Windows, Qt makes events for 16 locks when two threads first want one at once, which may be at
// any time. A test that counts handles calls this first.
inline void makeLockEvents()
{
    QMutex mutex;
    mutex.lock();
    std::thread([&mutex] { mutex.tryLock(1); }).join();
    mutex.unlock();
}
