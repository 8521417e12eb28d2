// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/directshow/PinList.h"

namespace Platform {

PinList::PinList(IPin& pin, bool isAtEnd)
    : m_pin(ComPointer<IPin>::sharing(pin)), m_isAtEnd(isAtEnd)
{
}

HRESULT PinList::Next(ULONG count, IPin** pins, ULONG* fetched)
{
    const ULONG given = count > 0 && !m_isAtEnd ? 1 : 0;
    if (given == 1) {
        m_pin->AddRef();
        *pins = m_pin.get();
        m_isAtEnd = true;
    }
    if (fetched) {
        *fetched = given;
    }
    return given == count ? S_OK : S_FALSE;
}

HRESULT PinList::Skip(ULONG count)
{
    const bool isThere = count == 0 || (count == 1 && !m_isAtEnd);
    m_isAtEnd = m_isAtEnd || count > 0;
    return isThere ? S_OK : S_FALSE;
}

HRESULT PinList::Reset()
{
    m_isAtEnd = false;
    return S_OK;
}

HRESULT PinList::Clone(IEnumPins** copy)
{
    *copy = new PinList(*m_pin.get(), m_isAtEnd);
    return S_OK;
}

} // namespace Platform
