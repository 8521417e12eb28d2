// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <memory>

#include <windows.h>
// Must follow windows.h.
#include <unknwn.h>

namespace TestSupport {

// A COM object that counts its references, and is counted itself. It also answers for the bases of
// its interface that are named.
template <typename Interface, typename... Bases>
class ComObject : public Interface
{
public:
    // The stage has the count of objects, and lives as long as they do.
    template <typename Stage>
    explicit ComObject(const std::shared_ptr<Stage>& stage) : m_objects(stage, &stage->objects)
    {
        ++*m_objects;
    }
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        const bool isKnown = id == __uuidof(IUnknown) || id == __uuidof(Interface) ||
                             (... || (id == __uuidof(Bases)));
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
    virtual ~ComObject() { --*m_objects; }

private:
    std::shared_ptr<std::atomic<int>> m_objects;
    std::atomic<ULONG> m_references{1};
};

} // namespace TestSupport
