// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"
#include "platform/backend/TimeSeries.h"

namespace Platform {

// How many events each second had, such as the frames of a camera.
class CLASSROOMBACKEND_EXPORT RateSeries
{
public:
    void add(double atSecond); // one event; times never go back
    // The whole seconds before the last event.
    const TimeSeries& series() const { return m_series; }

private:
    TimeSeries m_series;
    int m_second = 0; // the one that is counted
    int m_events = 0; // in it
};

} // namespace Platform
