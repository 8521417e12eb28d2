// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <optional>

// Finds a window on a picture of the screen. A Wayland compositor tells no program the places of
// its windows, so only the pixels can be trusted.
namespace ScreenPicture {

// The place of the part's upper left corner. The guess makes the search short.
std::optional<QPoint> find(const QImage& screen, const QImage& part, const QPoint& guess);

} // namespace ScreenPicture
