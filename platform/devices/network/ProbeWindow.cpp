// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/ProbeWindow.h"

#include "platform/backend/Percentile.h"

#include <QtGlobal>
#include <algorithm>
#include <vector>

namespace Platform {

namespace {

constexpr double JitterGain = 1.0 / 16.0; // RFC 3550, section 6.4.1

int wholeMs(ProbeWindow::Time time)
{
    return int(std::chrono::duration_cast<std::chrono::milliseconds>(time).count());
}

ProbeWindow::Time median(const std::vector<ProbeWindow::Time>& times)
{
    const size_t middle = times.size() / 2;
    return times.size() % 2 == 1 ? times[middle] : (times[middle - 1] + times[middle]) / 2;
}

} // namespace

int ProbeWindow::addProbe(Time sentAt)
{
    m_probes.push_back({m_nextNumber, sentAt, {}});
    return m_nextNumber++;
}

bool ProbeWindow::addAnswer(int number, Time arrivedAt)
{
    const auto probe = std::find_if(m_probes.begin(), m_probes.end(),
                                    [number](const Probe& each) { return each.number == number; });
    if (probe == m_probes.end() || probe->roundTrip || arrivedAt - probe->sentAt > Deadline) {
        return false;
    }
    probe->roundTrip = arrivedAt - probe->sentAt;
    addJitter(*probe->roundTrip);
    return true;
}

NetworkFigures ProbeWindow::figures(Time now)
{
    while (!m_probes.empty() && now - m_probes.front().sentAt >= Length) {
        m_probes.pop_front();
    }
    NetworkFigures result;
    std::vector<Time> roundTrips;
    int due = 0;
    int lost = 0;
    for (const Probe& probe : m_probes) {
        if (probe.roundTrip) {
            roundTrips.push_back(*probe.roundTrip);
        }
        if (now - probe.sentAt > Deadline) {
            ++due;
            lost += probe.roundTrip ? 0 : 1;
        }
    }
    result.sent = int(m_probes.size());
    result.answered = int(roundTrips.size());
    result.lossPercent = due > 0 ? qRound(100.0 * lost / due) : 0;
    if (!roundTrips.empty()) {
        std::sort(roundTrips.begin(), roundTrips.end());
        result.delayMs = wholeMs(median(roundTrips));
        result.delay5Ms = wholeMs(percentile(roundTrips, 5));
        result.delay95Ms = wholeMs(percentile(roundTrips, 95));
    }
    result.jitterMs = qRound(m_jitterUs / 1000.0);
    return result;
}

// The difference in transit of two packets of a pair is that of their round trips here, since the
// probe's clock takes both times.
void ProbeWindow::addJitter(Time roundTrip)
{
    if (m_lastRoundTrip) {
        const double difference = double(std::abs((roundTrip - *m_lastRoundTrip).count()));
        m_jitterUs += (difference - m_jitterUs) * JitterGain;
    }
    m_lastRoundTrip = roundTrip;
}

} // namespace Platform
