// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

#include <windows.h>
// Must follow windows.h.
#include <unknwn.h>

namespace Platform {

// An object that Windows calls, on threads of its own, by one or more interfaces. Made with one
// reference; Release() deletes it.
template <typename First, typename... Others>
class ComCallback : public First, public Others...
{
public:
    ComCallback() = default;
    ComCallback(const ComCallback&) = delete;
    ComCallback& operator=(const ComCallback&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        *object = id == __uuidof(IUnknown) ? static_cast<First*>(this) : nullptr;
        offer<First>(id, object);
        (..., offer<Others>(id, object));
        if (!*object) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --m_references;
        if (left == 0) {
            delete this;
        }
        return left;
    }

protected:
    virtual ~ComCallback() = default;

private:
    template <typename Interface>
    void offer(REFIID id, void** object)
    {
        if (id == __uuidof(Interface)) {
            *object = static_cast<Interface*>(this);
        }
    }

    std::atomic<ULONG> m_references{1};
};

} // namespace Platform
