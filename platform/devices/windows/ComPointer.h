// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include <windows.h>

namespace Platform {

// Holds one reference to a COM object.
template <typename Interface>
class ComPointer
{
public:
    ComPointer() = default;
    ~ComPointer() { reset(); }
    ComPointer(ComPointer&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    ComPointer& operator=(ComPointer&& other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;

    // With a reference more.
    static ComPointer sharing(Interface& object)
    {
        object.AddRef();
        ComPointer result;
        result.m_object = &object;
        return result;
    }

    Interface* get() const { return m_object; }
    Interface* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

    // For functions that return a reference of their own.
    Interface** put()
    {
        reset();
        return &m_object;
    }
    void** putVoid() { return reinterpret_cast<void**>(put()); }

    void reset()
    {
        if (m_object) {
            std::exchange(m_object, nullptr)->Release();
        }
    }

private:
    Interface* m_object = nullptr;
};

} // namespace Platform
