// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windowscameras/DeviceChangeWindow.h"

#include "platform/backend/Log.h"

#include <utility>

#include <dbt.h>
#include <ks.h>

namespace Platform {

namespace {

constexpr const wchar_t* ClassName = L"EnvCheckDeviceChange";
constexpr const wchar_t* OwnerKey = L"owner";
constexpr GUID Categories[] = {{STATIC_KSCATEGORY_VIDEO_CAMERA}, {STATIC_KSCATEGORY_CAPTURE}};

} // namespace

DeviceChangeWindow::DeviceChangeWindow(std::function<void()> changed)
    : m_changed(std::move(changed)), m_library(nullptr)
{
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(ClassName), &m_library);
    WNDCLASSW kind{};
    kind.lpfnWndProc = &DeviceChangeWindow::handle;
    kind.hInstance = m_library;
    kind.lpszClassName = ClassName;
    RegisterClassW(&kind); // may be there already
    // Windows doesn't tell everything to windows that are for messages only.
    m_window = CreateWindowExW(WS_EX_TOOLWINDOW, ClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                               nullptr, m_library, nullptr);
    if (!m_window) {
        qCInfo(Log::camera, "No window can be made for changes of devices: %lu", GetLastError());
        return;
    }
    SetPropW(m_window, OwnerKey, this);
    for (const GUID& category : Categories) {
        DEV_BROADCAST_DEVICEINTERFACE_W filter{};
        filter.dbcc_size = sizeof filter;
        filter.dbcc_devicetype = DBT_DEVTYP_DEVICEINTERFACE;
        filter.dbcc_classguid = category;
        if (void* registration =
                RegisterDeviceNotificationW(m_window, &filter, DEVICE_NOTIFY_WINDOW_HANDLE)) {
            m_registrations.push_back(registration);
        }
    }
}

DeviceChangeWindow::~DeviceChangeWindow()
{
    for (void* registration : m_registrations) {
        UnregisterDeviceNotification(registration);
    }
    if (m_window) {
        RemovePropW(m_window, OwnerKey);
        DestroyWindow(m_window);
    }
    UnregisterClassW(ClassName, m_library); // fails as long as another one has a window
}

LRESULT DeviceChangeWindow::handle(HWND window, UINT message, WPARAM wide, LPARAM data)
{
    if (message == WM_DEVICECHANGE) {
        const auto* self = static_cast<DeviceChangeWindow*>(GetPropW(window, OwnerKey));
        if (self) {
            self->m_changed();
        }
    }
    return DefWindowProcW(window, message, wide, data);
}

} // namespace Platform
