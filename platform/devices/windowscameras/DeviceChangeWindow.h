// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include <windows.h>

namespace Platform {

// Hears from Windows that devices came or went. It is a window that is never shown, since only
// windows get this message; its thread must have an event loop.
class DeviceChangeWindow
{
public:
    explicit DeviceChangeWindow(std::function<void()> changed); // called from the event loop
    ~DeviceChangeWindow();
    DeviceChangeWindow(const DeviceChangeWindow&) = delete;
    DeviceChangeWindow& operator=(const DeviceChangeWindow&) = delete;

private:
    static LRESULT CALLBACK handle(HWND window, UINT message, WPARAM wide, LPARAM data);

    const std::function<void()> m_changed;
    HINSTANCE m_library;
    HWND m_window = nullptr;
    std::vector<void*> m_registrations; // HDEVNOTIFY
};

} // namespace Platform
