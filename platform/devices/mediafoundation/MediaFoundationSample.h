// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/mediafoundation/MediaFoundation.h"
#include "platform/devices/windows/ComPointer.h"
#include "platform/devices/windowscameras/CameraSample.h"

namespace Platform {

// A sample of Media Foundation. Its memory is locked as long as somebody has the bytes.
class MediaFoundationSample final : public CameraSample
{
public:
    explicit MediaFoundationSample(IMFSample& sample);
    ~MediaFoundationSample() override;

    Bytes bytes() override;

private:
    ComPointer<IMFSample> m_sample;
    ComPointer<IMFMediaBuffer> m_buffer; // locked; null until somebody wants the bytes
};

} // namespace Platform
