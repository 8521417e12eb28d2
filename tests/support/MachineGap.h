// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>

namespace TestSupport {

// The longest time for which the machine let a thread wait that has nothing to do: what a GapMeter
// shows is owed to the program only above that.
class MachineGap
{
public:
    MachineGap() : m_thread([this] { run(); }) {}
    ~MachineGap()
    {
        m_isEnding = true;
        m_thread.join();
    }
    MachineGap(const MachineGap&) = delete;
    MachineGap& operator=(const MachineGap&) = delete;

    qint64 longestMs() const { return m_longestMs; }

private:
    static constexpr std::chrono::milliseconds Beat{2};

    void run()
    {
        QElapsedTimer sinceBeat;
        sinceBeat.start();
        while (!m_isEnding) {
            std::this_thread::sleep_for(Beat);
            m_longestMs = std::max<qint64>(m_longestMs, sinceBeat.restart());
        }
    }

    std::atomic<bool> m_isEnding{false};
    std::atomic<qint64> m_longestMs{0};
    std::thread m_thread; // last: it uses the others
};

} // namespace TestSupport
