// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/GapCount.h"

#include <QRandomGenerator>
#include <QString>
#include <QStringList>

// One repetition of a fault: its random numbers, and its outcome.
class Injection
{
public:
    Injection(quint32 seed, int number);

    int number() const { return m_number; }
    int random(int from, int to); // including both
    void fail(const QString& what) { m_failures << what; }
    bool require(bool isTrue, const QString& what); // returns isTrue

    void count(int injections) { m_injections += injections; }
    void countSignals(int signals) { m_signals += signals; }
    void noteGaps(const TestSupport::GapCount& gaps);

    QStringList failures() const { return m_failures; }
    int injections() const { return m_injections; }
    int signalCount() const { return m_signals; }
    const TestSupport::GapCount& gaps() const { return m_gaps; } // empty: not measured

private:
    QRandomGenerator m_random;
    int m_number;
    QStringList m_failures;
    int m_injections = 0;
    int m_signals = 0;
    TestSupport::GapCount m_gaps;
};
