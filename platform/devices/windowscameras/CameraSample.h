// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <cstddef>

namespace Platform {

// A frame as a camera of Windows has sent it.
class CameraSample
{
public:
    struct Bytes
    {
        const uchar* data = nullptr; // null if they can't be had
        std::size_t size = 0;
    };

    CameraSample() = default;
    virtual ~CameraSample() = default;
    CameraSample(const CameraSample&) = delete;
    CameraSample& operator=(const CameraSample&) = delete;

    virtual Bytes bytes() = 0; // valid as long as the sample lives
};

} // namespace Platform
