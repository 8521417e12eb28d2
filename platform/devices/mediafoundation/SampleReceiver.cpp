// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/mediafoundation/SampleReceiver.h"

#include "platform/devices/mediafoundation/MediaFoundationSample.h"

namespace Platform {

HRESULT SampleReceiver::OnReadSample(HRESULT error, DWORD /*stream*/, DWORD flags,
                                     LONGLONG /*time*/, IMFSample* sample)
{
    m_box->put({error, flags, sample ? std::make_unique<MediaFoundationSample>(*sample) : nullptr});
    return S_OK;
}

HRESULT SampleReceiver::OnFlush(DWORD /*stream*/)
{
    m_box->noteFlushed();
    return S_OK;
}

HRESULT SampleReceiver::OnEvent(DWORD /*stream*/, IMFMediaEvent* /*event*/)
{
    return S_OK;
}

} // namespace Platform
