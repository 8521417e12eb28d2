// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

class QWindow;

// What Qt doesn't say of windows on X11. On other systems these have nothing to do. GUI thread
// only.
namespace X11Windows {

bool areBlended(); // whether a transparent part of a window shows what is below it

// Some window managers move a new window once more without telling it. This has Qt hear of the
// window's true place.
void refreshPlace(const QWindow& window);

} // namespace X11Windows
