// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QRgb>
#include <QSize>

namespace TestSupport {

// What a staged camera can be asked to send.
struct StagedMode
{
    QByteArray format =
        "YUY2"; // YUY2, NV12, MJPG, RGB24, RGB32, I420, UYVY; others send what nobody can show
    QSize size{640, 480};
    int rateNumerator = 30; // frames in so many seconds
    int rateDenominator = 1;
    // Negative: bottom-up. 0: the camera says none, and rows have no padding. DirectShow knows it
    // of bitmaps only.
    int stride = 0;
    int nominalRange = 0; // as Media Foundation numbers it. 0: the camera says nothing
    int yuvMatrix = 0;    // the same
    QRgb color = 0;       // of all but a few marks. 0: the four quadrants
    int lowestRate = 0;   // DirectShow's cameras offer all rates from it on. 0: they offer one
};

} // namespace TestSupport
