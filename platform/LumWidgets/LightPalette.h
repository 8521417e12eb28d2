// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

// The colours of the client's windows, whatever the desktop's are: their style sheets are made for
// a white ground, and name only some of the colours.
QPalette lightPalette();
