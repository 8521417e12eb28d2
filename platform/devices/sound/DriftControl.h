// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace Platform {

// Says how a sound between two devices has to be stretched for the second one to keep a small,
// steady store of it: enough never to run dry, no more. It watches how low the store gets in a
// while, as only that counts. In milliseconds.
class DriftControl
{
public:
    static constexpr double FirstReserveMs = 6.0; // left at the lowest point
    static constexpr double LastReserveMs = 30.0;
    static constexpr double RanDryMs = 3.0; // more reserve after each time that it ran dry
    static constexpr double CalmMs = 0.1;   // less after each window in which it didn't
    static constexpr double WindowMs = 200.0;
    static constexpr double ExcessMs = 10.0; // more than that is cut off instead of squeezed

    // The store before so many milliseconds of new sound are added to it.
    void observe(double storeMs, double addedMs);
    void ranDry();

    double reserveMs() const { return m_reserveMs; }
    double deviation() const { return m_deviation; } // for the resampler
    double takeExcessMs();                           // to be left out of the sound now; once

private:
    double m_reserveMs = FirstReserveMs;
    double m_lowestMs = 0.0;
    double m_observedMs = 0.0; // of the window under way
    double m_drift = 0.0;      // of the two clocks, as far as it is known
    double m_deviation = 0.0;
    double m_excessMs = 0.0;
};

} // namespace Platform
