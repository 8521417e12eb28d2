// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

// The check looks the same on every desktop: its own style, light colours and size of letters.
namespace ProgramLook {

void use(); // after the application object is made, before the first window

} // namespace ProgramLook
