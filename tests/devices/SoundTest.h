// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pulse/PulseSound.h"
#include "tests/support/GapMeter.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/NoListener.h"
#include "tests/support/SoundRecording.h"
#include "tests/support/SoundServerTest.h"

#include <memory>

namespace TestSupport {

// The sound system of the real engine on a sound server.
class SoundTest : public SoundServerTest
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    static constexpr int TimeoutMs = 5000;
    static constexpr qint64 MaxGapMs = TestSupport::MaxGapMs;
    static constexpr float Audible = TestSupport::Audible;

    QJsonObject figures(const char* device) const
    {
        return m_report.measurements.value(id(device));
    }

    MemoryReport m_report;
    NoListener m_noListener;
    std::unique_ptr<Platform::PulseSound> m_sound;
};

} // namespace TestSupport
