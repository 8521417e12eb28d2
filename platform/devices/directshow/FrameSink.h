// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/directshow/FrameSinkPin.h"
#include "platform/devices/directshow/OnePinFilter.h"

namespace Platform {

// The filter at the end of a camera's graph: leaves the frames in a box. The camera may still call
// this filter after the graph was closed, so the filter owns what it uses.
class FrameSink final : public OnePinFilter
{
public:
    explicit FrameSink(std::shared_ptr<SampleBox> box) : m_pin(*this, std::move(box)) {}

    const MediaFormat& format() const { return m_pin.format(); }

    IPin& pin() override { return m_pin; }

private:
    ~FrameSink() override = default; // by Release()

    FrameSinkPin m_pin;
};

} // namespace Platform
