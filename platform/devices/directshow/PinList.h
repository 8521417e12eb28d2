// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windows/ComCallback.h"
#include "platform/devices/windows/ComPointer.h"

// Must follow windows.h.
#include <strmif.h>

namespace Platform {

// The pins of a filter that has one.
class PinList final : public ComCallback<IEnumPins>
{
public:
    explicit PinList(IPin& pin, bool isAtEnd = false);

    HRESULT STDMETHODCALLTYPE Next(ULONG count, IPin** pins, ULONG* fetched) override;
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
    HRESULT STDMETHODCALLTYPE Reset() override;
    HRESULT STDMETHODCALLTYPE Clone(IEnumPins** copy) override;

private:
    ~PinList() override = default; // by Release()

    ComPointer<IPin> m_pin;
    bool m_isAtEnd;
};

} // namespace Platform
