// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

// The client's palette.
namespace LumColor {

inline const QColor Red(0xFF, 0x4A, 0x27);
inline const QColor Green(0x00, 0x92, 0x65);
inline const QColor LightGreen(0x30, 0xBA, 0x78);

} // namespace LumColor
