// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windows/ComCallback.h"

#include <atomic>
#include <memory>

namespace TestSupport {

// A COM object that counts its references, and is counted itself. It also answers for the bases of
// its interface that are named.
template <typename Interface, typename... Bases>
class ComObject : public Platform::ComCallback<Interface>
{
public:
    // The stage has the count of objects, and lives as long as they do.
    template <typename Stage>
    explicit ComObject(const std::shared_ptr<Stage>& stage) : m_objects(stage, &stage->objects)
    {
        ++*m_objects;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        const bool isBase = (... || (id == __uuidof(Bases)));
        return Platform::ComCallback<Interface>::QueryInterface(isBase ? __uuidof(Interface) : id,
                                                                object);
    }

protected:
    ~ComObject() override { --*m_objects; }

private:
    std::shared_ptr<std::atomic<int>> m_objects;
};

} // namespace TestSupport
