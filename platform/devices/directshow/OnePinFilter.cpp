// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/directshow/OnePinFilter.h"

#include "platform/devices/directshow/PinList.h"

#include <algorithm>
#include <iterator>

namespace Platform {

HRESULT OnePinFilter::QueryInterface(REFIID id, void** object)
{
    const bool isBase = id == __uuidof(IPersist) || id == __uuidof(IMediaFilter);
    return ComCallback::QueryInterface(isBase ? __uuidof(IBaseFilter) : id, object);
}

HRESULT OnePinFilter::GetClassID(CLSID* id)
{
    *id = CLSID{}; // it is registered nowhere
    return S_OK;
}

HRESULT OnePinFilter::Stop()
{
    m_state = State_Stopped;
    return S_OK;
}

HRESULT OnePinFilter::Pause()
{
    m_state = State_Paused;
    return S_OK;
}

HRESULT OnePinFilter::Run(REFERENCE_TIME /*start*/)
{
    m_state = State_Running;
    return S_OK;
}

HRESULT OnePinFilter::GetState(DWORD /*timeoutMs*/, FILTER_STATE* state)
{
    *state = m_state;
    return S_OK;
}

HRESULT OnePinFilter::SetSyncSource(IReferenceClock* clock)
{
    m_clock = clock ? ComPointer<IReferenceClock>::sharing(*clock) : ComPointer<IReferenceClock>();
    return S_OK;
}

HRESULT OnePinFilter::GetSyncSource(IReferenceClock** clock)
{
    *clock = m_clock.get();
    if (m_clock) {
        m_clock->AddRef();
    }
    return S_OK;
}

HRESULT OnePinFilter::EnumPins(IEnumPins** pins)
{
    *pins = new PinList(pin());
    return S_OK;
}

HRESULT OnePinFilter::FindPin(LPCWSTR /*id*/, IPin** found)
{
    *found = nullptr;
    return E_NOTIMPL; // only graphs that are read from files need it
}

HRESULT OnePinFilter::QueryFilterInfo(FILTER_INFO* info)
{
    const std::size_t length = std::min(m_name.size(), std::size(info->achName) - 1);
    std::copy_n(m_name.begin(), length, std::begin(info->achName));
    info->achName[length] = L'\0';
    info->pGraph = m_graph;
    if (m_graph) {
        m_graph->AddRef();
    }
    return S_OK;
}

HRESULT OnePinFilter::JoinFilterGraph(IFilterGraph* graph, LPCWSTR name)
{
    m_graph = graph;
    m_name = name ? name : L"";
    return S_OK;
}

HRESULT OnePinFilter::QueryVendorInfo(LPWSTR* /*text*/)
{
    return E_NOTIMPL;
}

} // namespace Platform
