// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

namespace Platform {

// Wakes one waiting thread, once for each set(). Thread-safe.
class WakeEvent
{
public:
    WakeEvent() : m_handle(CreateEventW(nullptr, FALSE, FALSE, nullptr)) {}
    ~WakeEvent() { CloseHandle(m_handle); }
    WakeEvent(const WakeEvent&) = delete;
    WakeEvent& operator=(const WakeEvent&) = delete;

    void set() { SetEvent(m_handle); }
    HANDLE handle() const { return m_handle; }

private:
    HANDLE m_handle;
};

} // namespace Platform
