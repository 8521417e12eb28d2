// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/mediafoundation/MediaFoundationSample.h"

namespace Platform {

MediaFoundationSample::MediaFoundationSample(IMFSample& sample)
    : m_sample(ComPointer<IMFSample>::sharing(sample))
{
}

MediaFoundationSample::~MediaFoundationSample()
{
    if (m_buffer) {
        m_buffer->Unlock();
    }
}

CameraSample::Bytes MediaFoundationSample::bytes()
{
    ComPointer<IMFMediaBuffer> buffer;
    BYTE* data = nullptr;
    DWORD size = 0;
    if (m_buffer || FAILED(m_sample->ConvertToContiguousBuffer(buffer.put())) ||
        FAILED(buffer->Lock(&data, nullptr, &size))) {
        return {};
    }
    m_buffer = std::move(buffer);
    return {data, size};
}

} // namespace Platform
