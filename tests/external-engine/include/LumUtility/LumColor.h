// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace LumColor {

inline const QColor Red(Qt::red);
inline const QColor Green(Qt::darkGreen);
inline const QColor LightGreen(Qt::green);

} // namespace LumColor
