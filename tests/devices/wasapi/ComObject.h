// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

#include <windows.h>
// Must follow windows.h.
#include <unknwn.h>

namespace TestSupport {

// A COM object that counts its references, and is counted itself.
template <typename Interface>
class ComObject : public Interface
{
public:
    explicit ComObject(std::atomic<int>& objects) : m_objects(objects) { ++m_objects; }
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        const bool isKnown = id == __uuidof(IUnknown) || id == __uuidof(Interface);
        *object = isKnown ? static_cast<Interface*>(this) : nullptr;
        if (isKnown) {
            AddRef();
        }
        return isKnown ? S_OK : E_NOINTERFACE;
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
    virtual ~ComObject() { --m_objects; }

private:
    std::atomic<int>& m_objects; // of the stage, which the derived object holds
    std::atomic<ULONG> m_references{1};
};

} // namespace TestSupport
