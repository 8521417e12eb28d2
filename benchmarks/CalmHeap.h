// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

// The heap of this process without Qt's cache of drawn icons, which takes up to ten megabytes and
// grows with each opening of the dialog.
namespace CalmHeap {

constexpr int IconNamesMs = 31000; // Qt cleans its cache of icons at most every 30 s

// Runs the event loop for that long. Only a timer of the cache drops the names of icons, so it
// takes IconNamesMs until all are gone.
void dropIcons(int calmMs);
std::size_t bytes();

} // namespace CalmHeap
