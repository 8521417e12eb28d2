// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportWords.h"

struct ReportCheck;

// Finds answers of the user that can't be true together with what was measured.
namespace Contradictions {

// If more than this share of the frames is black or frozen, the user sees no picture.
constexpr double BadPictureShare = 0.5;

std::vector<Contradiction> of(const ReportCheck& check);

} // namespace Contradictions
