// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windowscameras/CameraSample.h"

#include <vector>

namespace Platform {

// A copy, so that the camera gets its memory back at once: some have room for one frame only.
class CopiedSample final : public CameraSample
{
public:
    CopiedSample(const uchar* data, std::size_t size) : m_bytes(data, data + size) {}

    Bytes bytes() override { return {m_bytes.data(), m_bytes.size()}; }

private:
    const std::vector<uchar> m_bytes;
};

} // namespace Platform
