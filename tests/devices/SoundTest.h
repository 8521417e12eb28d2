// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pulse/PulseSound.h"
#include "tests/support/GapMeter.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/NoListener.h"
#include "tests/support/SoundRecording.h"
#include "tests/support/SoundServer.h"

#include <QObject>
#include <memory>

namespace TestSupport {

// Each test case runs with both kinds of sound server, on a new one each time.
class SoundTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();

protected:
    static constexpr int TimeoutMs = 5000;
    static constexpr qint64 MaxGapMs = TestSupport::MaxGapMs;
    static constexpr float Audible = TestSupport::Audible;

    static QString id(const char* name) { return QString::fromLatin1(name); }

    QJsonObject figures(const char* device) const
    {
        return m_report.measurements.value(id(device));
    }

    std::unique_ptr<SoundServer> m_server;
    MemoryReport m_report;
    NoListener m_noListener;
    std::unique_ptr<Platform::PulseSound> m_sound;
};

} // namespace TestSupport
