// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QImage;

namespace TestSupport {

// How many samples of a block there are, beside and above each other.
struct JpegFactors
{
    int horizontal = 0;
    int vertical = 0;
};

struct JpegSampling
{
    JpegFactors luma{2, 2};
    JpegFactors chroma{1, 1}; // 0: there is none

    bool isGray() const { return chroma.horizontal == 0; }
};

// Also where Qt is built without JPEG. The quality is 1 to 100.
QByteArray encodeJpeg(const QImage& image, int quality, const JpegSampling& sampling = {});

} // namespace TestSupport
