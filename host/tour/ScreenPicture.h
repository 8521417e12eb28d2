// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <optional>

// Where a window is on a picture of the screen. Compositors tell no program the places of its
// windows, so only the pixels are to be trusted.
namespace ScreenPicture {

// The place of the part's upper left corner. The guess makes the search short.
std::optional<QPoint> find(const QImage& screen, const QImage& part, const QPoint& guess);

} // namespace ScreenPicture
