// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/directshow/MediaType.h"
#include "platform/devices/windows/ComPointer.h"

namespace Platform {

// What the only pin of a filter does whatever its direction. It lives and dies with its filter,
// which has its references. Called on one thread at a time.
class FilterPin : public IPin
{
public:
    FilterPin(IBaseFilter& filter, PIN_DIRECTION direction);
    virtual ~FilterPin() = default;
    FilterPin(const FilterPin&) = delete;
    FilterPin& operator=(const FilterPin&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return m_filter.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return m_filter.Release(); }

    HRESULT STDMETHODCALLTYPE Connect(IPin* to, const AM_MEDIA_TYPE* type) override;
    HRESULT STDMETHODCALLTYPE ReceiveConnection(IPin* from, const AM_MEDIA_TYPE* type) override;
    HRESULT STDMETHODCALLTYPE Disconnect() override;
    HRESULT STDMETHODCALLTYPE ConnectedTo(IPin** peer) override;
    HRESULT STDMETHODCALLTYPE ConnectionMediaType(AM_MEDIA_TYPE* type) override;
    HRESULT STDMETHODCALLTYPE QueryPinInfo(PIN_INFO* info) override;
    HRESULT STDMETHODCALLTYPE QueryDirection(PIN_DIRECTION* direction) override;
    HRESULT STDMETHODCALLTYPE QueryId(LPWSTR* id) override;
    HRESULT STDMETHODCALLTYPE EnumMediaTypes(IEnumMediaTypes** types) override;
    HRESULT STDMETHODCALLTYPE QueryInternalConnections(IPin** pins, ULONG* count) override;
    HRESULT STDMETHODCALLTYPE EndOfStream() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE BeginFlush() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EndFlush() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE NewSegment(REFERENCE_TIME start, REFERENCE_TIME stop,
                                         double rate) override;

protected:
    bool isConnected() const { return static_cast<bool>(m_peer); }
    void setConnection(IPin& peer, const AM_MEDIA_TYPE& type);
    // Another interface than IPin; null if it hasn't got it.
    virtual IUnknown* otherInterface(REFIID id) = 0;

private:
    IBaseFilter& m_filter;
    const PIN_DIRECTION m_direction;
    ComPointer<IPin> m_peer;
    MediaType m_type;
};

} // namespace Platform
