// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace Platform {

// The pictures of a scripted camera.
namespace TestPattern {

// The picture's size within an upper bound (an empty one doesn't bound), its aspect kept.
QSize fitted(const QSize& size, const QSize& bound);

// Colours that tell cameras apart, a bar that moves with the frame's number, and the name, which
// reads right for the viewer: the picture is a mirrored one already.
QImage picture(const QSize& size, const QString& name, int frame);
QImage black(const QSize& size);
double brightness(const QImage& picture); // 0 to 1

} // namespace TestPattern
} // namespace Platform
