// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/Lanes.h"

#include "tests/campaign/Fault.h"

#include <atomic>
#include <thread>
#include <utility>

namespace {

constexpr int LaneCount = 2;

} // namespace

Lanes::Lanes(std::vector<const Fault*> faults, quint32 seed, int repetitions, Report report)
    : m_faults(std::move(faults)),
      m_seed(seed),
      m_repetitions(repetitions),
      m_report(std::move(report)),
      m_results(m_faults.size()),
      m_areReady(m_faults.size(), false)
{
}

void Lanes::run()
{
    std::vector<Group> unmetered;
    for (const Group& group : groups()) {
        if (isMetered(group)) {
            runGroup(group);
        } else {
            unmetered.push_back(group);
        }
    }
    runSideBySide(unmetered);
}

// With a sanitizer no gap is judged.
bool Lanes::isMetered(const Group& group)
{
#ifdef __SANITIZE_ADDRESS__
    constexpr bool IsJudged = false;
#else
    constexpr bool IsJudged = true;
#endif
    return IsJudged && group.faults.front()->needs != Fault::Needs::Program;
}

// Starting servers, and a first check, take as long as a fault: those that need servers share them.
std::vector<Lanes::Group> Lanes::groups() const
{
    std::vector<Group> result;
    for (std::size_t i = 0; i < m_faults.size(); ++i) {
        const bool isShared = m_faults[i]->needs == Fault::Needs::Servers && !result.empty() &&
                              result.back().faults.front()->needs == Fault::Needs::Servers;
        if (!isShared) {
            result.push_back({i, {}});
        }
        result.back().faults.push_back(m_faults[i]);
    }
    return result;
}

void Lanes::runGroup(const Group& group)
{
    const std::vector<FaultResult> results = FaultProcess::run(group.faults, m_seed, m_repetitions);
    const std::scoped_lock lock(m_mutex);
    for (std::size_t i = 0; i < results.size(); ++i) {
        m_results[group.first + i] = results[i];
        m_areReady[group.first + i] = true;
    }
    reportReady();
}

void Lanes::runSideBySide(const std::vector<Group>& groups)
{
    std::atomic<std::size_t> next{0};
    std::vector<std::thread> lanes;
    for (int i = 0; i < LaneCount; ++i) {
        lanes.emplace_back([&] {
            for (std::size_t mine = next++; mine < groups.size(); mine = next++) {
                runGroup(groups[mine]);
            }
        });
    }
    for (std::thread& lane : lanes) {
        lane.join();
    }
}

void Lanes::reportReady()
{
    for (; m_reported < m_faults.size() && m_areReady[m_reported]; ++m_reported) {
        m_report(*m_faults[m_reported], m_results[m_reported]);
    }
}
