// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Platform {

// Compensates the clock drift between two devices. It says how much longer or shorter the sound has
// to become so that the playback buffer keeps a small, steady fill level: low for little delay, and
// high enough that it never underflows. Only the lowest level in a window counts, because only that
// one can underflow. All times are in milliseconds.
class DriftControl
{
public:
    static constexpr double FirstTargetMs = 6.0; // what the servers of Linux need
    static constexpr double MaxTargetMs = 30.0;
    static constexpr double UnderflowStepMs = 3.0; // the target rises with each underflow
    static constexpr double DecayMs = 0.1; // the target falls with each window without underflow
    static constexpr double WindowMs = 200.0;
    static constexpr double ExcessMs = 10.0; // more than this is dropped, not resampled away

    // firstTargetMs: wanted at the lowest point of a window, until there is an underflow.
    explicit DriftControl(double firstTargetMs = FirstTargetMs)
        : m_firstTargetMs(firstTargetMs), m_targetMs(firstTargetMs)
    {
    }

    // fillMs: the fill level before addedMs of new sound are written.
    void observe(double fillMs, double addedMs);
    void noteUnderflow();

    double targetMs() const { return m_targetMs; }
    double deviation() const { return m_deviation; } // for DriftResampler
    double takeExcessMs();                           // how much to drop now; zero until more comes

private:
    double m_firstTargetMs;
    double m_targetMs;
    double m_lowestMs = 0.0;
    double m_observedMs = 0.0; // length of the current window so far
    double m_drift = 0.0;      // estimated drift of the two clocks
    double m_deviation = 0.0;
    double m_excessMs = 0.0;
};

} // namespace Platform
