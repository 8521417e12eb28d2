// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QtGlobal>

// How busy the machine was since the construction: the share of the time in which a thread of the
// machine was ready to run and waited for a processor (the kernel's /proc/pressure/cpu).
class BusyMeter
{
public:
    // On two cores, a benchmark with its server and its peer reaches about half of it by itself.
    static constexpr double MaxShare = 0.25;

    BusyMeter();

    double share() const; // NaN if the kernel doesn't tell
    bool wasQuiet() const { return !(share() > MaxShare); }

private:
    static qint64 waitedUs(); // negative if the kernel doesn't tell

    qint64 m_before;
    QElapsedTimer m_clock;
};
