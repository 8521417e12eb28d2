// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <vector>

namespace Platform {

// The least of the sorted values, of which there must be one, that so many percent of them don't
// exceed.
template <typename Value>
Value percentile(const std::vector<Value>& sorted, std::size_t percent)
{
    const std::size_t rank = (sorted.size() * percent + 99) / 100;
    return sorted[std::max<std::size_t>(rank, 1) - 1];
}

} // namespace Platform
