// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/FaultProcess.h"

#include <cstddef>
#include <functional>
#include <mutex>
#include <vector>

// Runs the faults of a campaign: the dialogs one after the other, because their gaps are measured,
// and the programs, which mostly wait, side by side.
class Lanes
{
public:
    using Report = std::function<void(const Fault& fault, const FaultResult& result)>;

    // repetitions: as for FaultProcess::run(). report is called in the order of the faults, on any
    // thread, one at a time.
    Lanes(std::vector<const Fault*> faults, quint32 seed, int repetitions, Report report);

    void run();

private:
    struct Group
    {
        std::size_t first;
        std::vector<const Fault*> faults; // of one process
    };

    static bool isMetered(const Group& group);
    std::vector<Group> groups() const;
    void runGroup(const Group& group);
    void runSideBySide(const std::vector<Group>& groups);
    void reportReady();

    const std::vector<const Fault*> m_faults;
    const quint32 m_seed;
    const int m_repetitions;
    const Report m_report;
    std::mutex m_mutex; // guards the rest
    std::vector<FaultResult> m_results;
    std::vector<bool> m_areReady;
    std::size_t m_reported = 0;
};
