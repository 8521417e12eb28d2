// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QFont>
#include <QString>

class QPainter;
class QRect;

namespace Platform {
struct CameraCause;
}

// What a preview says in the place of a picture, and how it looks. GUI thread only.
namespace PreviewNotice {

constexpr int FontPixels = 13;
constexpr int MarginPixels = 16;
constexpr int SpinnerSteps = 12; // of a turn

// In the user's language, for a place of this width. Empty if there is nothing to say.
QString textOf(const Platform::CameraCause& cause, const QFont& font, int width);

// The text in the middle of the area, on a light ground if there is a picture behind it.
void paintText(QPainter& painter, const QRect& area, const QString& text, bool isOnPicture);
// The text and a part of a turning ring above it.
void paintStarting(QPainter& painter, const QRect& area, const QString& text, int step);

} // namespace PreviewNotice
