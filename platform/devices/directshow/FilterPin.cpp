// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/directshow/FilterPin.h"

#include <cwchar>

// Must follow windows.h.
#include <objbase.h>
#include <vfwmsgs.h>

namespace Platform {

namespace {

constexpr wchar_t Name[] = L"Video";

} // namespace

FilterPin::FilterPin(IBaseFilter& filter, PIN_DIRECTION direction)
    : m_filter(filter), m_direction(direction)
{
}

HRESULT FilterPin::QueryInterface(REFIID id, void** object)
{
    const bool isPin = id == __uuidof(IUnknown) || id == __uuidof(IPin);
    IUnknown* const found = isPin ? this : otherInterface(id);
    *object = found;
    if (!found) {
        return E_NOINTERFACE;
    }
    found->AddRef();
    return S_OK;
}

HRESULT FilterPin::Connect(IPin* /*to*/, const AM_MEDIA_TYPE* /*type*/)
{
    return E_UNEXPECTED; // only outputs begin
}

HRESULT FilterPin::ReceiveConnection(IPin* /*from*/, const AM_MEDIA_TYPE* /*type*/)
{
    return E_UNEXPECTED; // only inputs are asked
}

HRESULT FilterPin::Disconnect()
{
    if (!m_peer) {
        return S_FALSE;
    }
    m_peer.reset();
    m_type = MediaType();
    return S_OK;
}

HRESULT FilterPin::ConnectedTo(IPin** peer)
{
    *peer = m_peer.get();
    if (!m_peer) {
        return VFW_E_NOT_CONNECTED;
    }
    m_peer->AddRef();
    return S_OK;
}

HRESULT FilterPin::ConnectionMediaType(AM_MEDIA_TYPE* type)
{
    *type = MediaType(m_type.get()).release();
    return m_peer ? S_OK : VFW_E_NOT_CONNECTED;
}

HRESULT FilterPin::QueryPinInfo(PIN_INFO* info)
{
    m_filter.AddRef();
    info->pFilter = &m_filter;
    info->dir = m_direction;
    std::wcscpy(info->achName, Name);
    return S_OK;
}

HRESULT FilterPin::QueryDirection(PIN_DIRECTION* direction)
{
    *direction = m_direction;
    return S_OK;
}

HRESULT FilterPin::QueryId(LPWSTR* id)
{
    *id = static_cast<LPWSTR>(CoTaskMemAlloc(sizeof Name));
    if (!*id) {
        return E_OUTOFMEMORY;
    }
    std::wcscpy(*id, Name);
    return S_OK;
}

HRESULT FilterPin::EnumMediaTypes(IEnumMediaTypes** types)
{
    *types = nullptr;
    return E_NOTIMPL;
}

HRESULT FilterPin::QueryInternalConnections(IPin** /*pins*/, ULONG* /*count*/)
{
    return E_NOTIMPL; // there is no other pin
}

HRESULT FilterPin::NewSegment(REFERENCE_TIME /*start*/, REFERENCE_TIME /*stop*/, double /*rate*/)
{
    return S_OK;
}

void FilterPin::setConnection(IPin& peer, const AM_MEDIA_TYPE& type)
{
    m_peer = ComPointer<IPin>::sharing(peer);
    m_type = MediaType(type);
}

} // namespace Platform
