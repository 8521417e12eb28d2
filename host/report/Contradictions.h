// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportWords.h"

struct ReportCheck;

// Where a user's answer and what was measured can't both be true.
namespace Contradictions {

// More than this share of the pictures black or frozen is no picture of a user.
constexpr double BadPictureShare = 0.5;

std::vector<Contradiction> of(const ReportCheck& check);

} // namespace Contradictions
