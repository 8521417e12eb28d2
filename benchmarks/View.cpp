// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/View.h"

#include "tests/support/CameraPattern.h"

#include <cstdio>
#include <ctime>

namespace {

void tell(int number)
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    std::printf("frame %d %lld\n", number, now.tv_sec * 1000000000LL + now.tv_nsec);
    std::fflush(stdout);
}

} // namespace

void View::tellReady()
{
    std::puts("ready");
    std::fflush(stdout);
}

void View::tellPainted(const QImage& frame, bool isMirrored)
{
    if (isSilent) {
        return;
    }
    constexpr int Row = 4;
    constexpr int Bits = TestSupport::CameraPattern::NumberBits;
    int number = 0;
    for (int bit = 0; bit < Bits; ++bit) {
        const int x = frame.width() * (2 * bit + 1) / (2 * Bits);
        const QRgb pixel = frame.pixel(isMirrored ? frame.width() - 1 - x : x, Row);
        number |= qGray(pixel) > 127 ? 1 << bit : 0;
    }
    tell(number);
}

void View::tellArrived()
{
    tell(0);
}
