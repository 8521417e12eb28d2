// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

// What this process holds at the moment. Free of Qt.
namespace ProcessResources {

int openHandles(); // files, and on Windows everything else that has a handle
int threads();
std::size_t privateBytes();
std::size_t heapBytes(); // what was allocated and not given back

} // namespace ProcessResources
