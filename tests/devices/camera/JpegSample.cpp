// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/camera/JpegSample.h"

#include <QImage>

namespace TestSupport {

namespace {

constexpr int Quality = 75;

} // namespace

QByteArray JpegSample::bytes() const
{
    QImage image(Size, QImage::Format_RGB32);
    for (int y = 0; y < Size.height(); ++y) {
        for (int x = 0; x < Size.width(); ++x) {
            image.setPixel(x, y, x < Size.width() / 2 ? Dark : Bright);
        }
    }
    return encodeJpeg(image, Quality, sampling);
}

} // namespace TestSupport
