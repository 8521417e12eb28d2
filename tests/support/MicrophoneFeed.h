// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace TestSupport {

// A microphone of a sound server that hears what it is handed, when it is handed it: the caller is
// its clock.
class MicrophoneFeed
{
public:
    static constexpr std::size_t PieceSize = 256; // samples of one channel

    virtual ~MicrophoneFeed() = default;

    virtual bool isPlugged() const = 0;
    // As many as the size of a piece. From one thread, which needn't be that of the making.
    virtual void hear(const float* piece) = 0;
};

} // namespace TestSupport
