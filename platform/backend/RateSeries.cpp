// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/RateSeries.h"

#include <algorithm>

namespace Platform {

void RateSeries::add(double atSecond)
{
    // What no series keeps needn't be added.
    const int second = static_cast<int>(atSecond);
    m_second = std::max(m_second, second - TimeSeries::MaxValues - 1);
    for (; m_second < second; ++m_second) {
        m_series.add(m_events);
        m_events = 0;
    }
    ++m_events;
}

} // namespace Platform
