// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace Platform {

// The frames of a scripted camera.
namespace TestPattern {

// The size, scaled down to the bound if it is larger, with the aspect ratio kept. An empty bound
// is no bound.
QSize fitted(const QSize& size, const QSize& bound);

// A background colour per camera, a bar that moves with the frame number, and the name. The name is
// not mirrored: a viewer must be able to read it.
QImage picture(const QSize& size, const QString& name, int frame);
QImage black(const QSize& size);
double brightness(const QImage& picture); // 0 to 1

} // namespace TestPattern
} // namespace Platform
