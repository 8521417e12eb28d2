// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <vector>

namespace Platform {

// Nearest-rank percentile of a non-empty sorted range.
template <typename Value>
Value percentile(const std::vector<Value>& sorted, std::size_t percent)
{
    const std::size_t rank = (sorted.size() * percent + 99) / 100;
    return sorted[std::max<std::size_t>(rank, 1) - 1];
}

} // namespace Platform
