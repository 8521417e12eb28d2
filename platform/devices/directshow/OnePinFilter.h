// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windows/ComCallback.h"
#include "platform/devices/windows/ComPointer.h"

// Must follow windows.h.
#include <strmif.h>

#include <atomic>
#include <string>

namespace Platform {

// What a filter with one pin does whatever it is for. Made with one reference.
class OnePinFilter : public ComCallback<IBaseFilter>
{
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) override;
    HRESULT STDMETHODCALLTYPE Stop() override;
    HRESULT STDMETHODCALLTYPE Pause() override;
    HRESULT STDMETHODCALLTYPE Run(REFERENCE_TIME start) override;
    HRESULT STDMETHODCALLTYPE GetState(DWORD timeoutMs, FILTER_STATE* state) override;
    HRESULT STDMETHODCALLTYPE SetSyncSource(IReferenceClock* clock) override;
    HRESULT STDMETHODCALLTYPE GetSyncSource(IReferenceClock** clock) override;
    HRESULT STDMETHODCALLTYPE EnumPins(IEnumPins** pins) override;
    HRESULT STDMETHODCALLTYPE FindPin(LPCWSTR id, IPin** found) override;
    HRESULT STDMETHODCALLTYPE QueryFilterInfo(FILTER_INFO* info) override;
    HRESULT STDMETHODCALLTYPE JoinFilterGraph(IFilterGraph* graph, LPCWSTR name) override;
    HRESULT STDMETHODCALLTYPE QueryVendorInfo(LPWSTR* text) override;

    virtual IPin& pin() = 0;

protected:
    OnePinFilter() = default;
    ~OnePinFilter() override = default; // by Release()

    IFilterGraph* graph() const { return m_graph; } // null if it is in none

private:
    std::atomic<FILTER_STATE> m_state{State_Stopped};
    ComPointer<IReferenceClock> m_clock;
    IFilterGraph* m_graph = nullptr; // owns the filter, so there is no reference
    std::wstring m_name;             // in the graph
};

} // namespace Platform
