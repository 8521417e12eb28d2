// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <map>

namespace TestSupport {

// 99 of 100 gaps are no longer: one frame of a screen.
constexpr double UsualGapMs = 16.7;

// How often the event loop was blocked for how long.
class GapCount
{
public:
    void add(qint64 gapMs) { ++m_countByMs[gapMs]; }

    void add(const GapCount& others)
    {
        for (const auto& [gapMs, count] : others.m_countByMs) {
            m_countByMs[gapMs] += count;
        }
    }

    bool isEmpty() const { return m_countByMs.empty(); }
    qint64 longestMs() const { return isEmpty() ? 0 : m_countByMs.rbegin()->first; }

    // 99 of 100 gaps are no longer.
    qint64 usualMs() const
    {
        qint64 all = 0;
        for (const auto& [gapMs, count] : m_countByMs) {
            all += count;
        }
        qint64 longer = 0;
        for (auto gap = m_countByMs.crbegin(); gap != m_countByMs.crend(); ++gap) {
            longer += gap->second;
            if (longer * 100 > all) {
                return gap->first;
            }
        }
        return 0;
    }

private:
    std::map<qint64, qint64> m_countByMs;
};

} // namespace TestSupport
