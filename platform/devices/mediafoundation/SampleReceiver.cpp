// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/mediafoundation/SampleReceiver.h"

namespace Platform {

HRESULT SampleReceiver::QueryInterface(REFIID id, void** object)
{
    if (!IsEqualGUID(id, IID_IUnknown) && !IsEqualGUID(id, IID_IMFSourceReaderCallback)) {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    *object = static_cast<IMFSourceReaderCallback*>(this);
    AddRef();
    return S_OK;
}

ULONG SampleReceiver::AddRef()
{
    return ++m_references;
}

ULONG SampleReceiver::Release()
{
    const ULONG left = --m_references;
    if (left == 0) {
        delete this;
    }
    return left;
}

HRESULT SampleReceiver::OnReadSample(HRESULT error, DWORD /*stream*/, DWORD flags,
                                     LONGLONG /*time*/, IMFSample* sample)
{
    m_box->put(error, flags, sample);
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
