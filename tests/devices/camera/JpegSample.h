// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/JpegEncoder.h"

#include <QMetaType>
#include <QRgb>
#include <QSize>

namespace TestSupport {

// A JPEG with any sampling: its left half is dark, its right half bright and orange.
struct JpegSample
{
    static constexpr QSize Size{127, 95};
    static constexpr QRgb Dark = qRgb(0x20, 0x20, 0x20);
    static constexpr QRgb Bright = qRgb(0xe0, 0x80, 0x20);
    static constexpr QRgb BrightGray = qRgb(0x92, 0x92, 0x92);

    JpegSampling sampling;

    QByteArray bytes() const;
};

} // namespace TestSupport

Q_DECLARE_METATYPE(TestSupport::JpegSample)
