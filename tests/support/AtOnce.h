// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

// What doesn't wait is over by then, on a busy machine too; any wait is far longer.
constexpr int AtOnceMs = 250;
