// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windows/ComPointer.h"
#include "tests/devices/ComObject.h"

// Must follow windows.h.
#include <mfapi.h>
#include <mfidl.h>

namespace TestSupport {

// An object of Media Foundation that tells events by a queue of the system.
template <typename Interface>
class EventGenerator : public ComObject<Interface, IMFMediaEventGenerator>
{
public:
    template <typename Stage>
    explicit EventGenerator(const std::shared_ptr<Stage>& stage)
        : ComObject<Interface, IMFMediaEventGenerator>(stage)
    {
        MFCreateEventQueue(m_events.put());
    }

    HRESULT STDMETHODCALLTYPE GetEvent(DWORD flags, IMFMediaEvent** event) override
    {
        return m_events->GetEvent(flags, event);
    }
    HRESULT STDMETHODCALLTYPE BeginGetEvent(IMFAsyncCallback* callback, IUnknown* state) override
    {
        return m_events->BeginGetEvent(callback, state);
    }
    HRESULT STDMETHODCALLTYPE EndGetEvent(IMFAsyncResult* result, IMFMediaEvent** event) override
    {
        return m_events->EndGetEvent(result, event);
    }
    HRESULT STDMETHODCALLTYPE QueueEvent(MediaEventType type, REFGUID extendedType, HRESULT status,
                                         const PROPVARIANT* value) override
    {
        return m_events->QueueEventParamVar(type, extendedType, status, value);
    }

    void tell(MediaEventType type, const PROPVARIANT* value = nullptr)
    {
        m_events->QueueEventParamVar(type, {}, S_OK, value);
    }
    void tellOf(MediaEventType type, IUnknown* object)
    {
        m_events->QueueEventParamUnk(type, {}, S_OK, object);
    }
    void closeEvents() { m_events->Shutdown(); }

private:
    Platform::ComPointer<IMFMediaEventQueue> m_events;
};

} // namespace TestSupport
