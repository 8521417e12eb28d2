// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FrameConverter.h"
#include "tests/fuzz/FuzzInput.h"

using namespace Platform;

// A frame of a camera that sends JPEGs. The first byte says how the frame is turned.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    static FrameConverter converter;
    FrameView view;
    view.planeCount = 1;
    view.planes[0] = {data + 1, size - 1, 0};
    const FrameOrientation orientation{data[0] % 4, (data[0] & 4) != 0};
    const QSize bound(320, 240);
    const QImage image = converter.convert({PixelFormat::Mjpg, YuvColor::Bt601Full, QSize(64, 48)},
                                           view, orientation, bound);
    FuzzInput::require(image.width() <= bound.width() && image.height() <= bound.height());
    return 0;
}
