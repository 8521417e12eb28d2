// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

// The user whose device is meant; 0 is the local one.
enum class Channel : int {
    Local = 0,
};
