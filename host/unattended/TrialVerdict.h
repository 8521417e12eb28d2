// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportWords.h"

#include <QJsonObject>
#include <vector>

// The verdict on a device that follows from its figures alone, and its causes. The source of each
// limit is in docs/report-format.md.
struct TrialVerdict
{
    // Not one sample above the last bit of 16: 20 log10(1 / 32768).
    static constexpr double SilentPeakDb = -90.3;
    static constexpr double ClippedShare = 0.001;
    // Hum is told if it makes up most of the noise, and the noise is less than 30 dB below speech
    // at its nominal level of -26 dBov.
    static constexpr double HumShare = 0.5;
    static constexpr double HumFloorDb = -56.0;

    Verdict verdict = Verdict::Unmeasured;
    std::vector<Cause> causes;

    // hasEnded: it was over, and not broken off.
    static TrialVerdict of(CheckKind kind, const QJsonObject& figures, bool hasEnded);
};
