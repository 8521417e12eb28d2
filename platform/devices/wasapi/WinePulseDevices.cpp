// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WinePulseDevices.h"

#include <QUuid>

#include <windows.h>

namespace Platform {

namespace {

constexpr wchar_t Devices[] = L"Software\\Wine\\Drivers\\winepulse.drv\\devices";
constexpr DWORD LongestKey = 255; // in the registry

// Of the endpoints for the server's default speaker and microphone, in all versions of Wine.
const char* const Defaults[] = {"{FD47D9CC-4218-4135-9CE2-0C195C87405B}",
                                "{25DA76D0-033C-4235-9002-19F48894AC6F}"};

// A key is named by the direction, a comma and PulseAudio's name of the device.
bool isMonitor(const QString& key)
{
    return key.endsWith(QLatin1String(".monitor"));
}

QString guidOf(HKEY devices, const wchar_t* key)
{
    GUID guid = {};
    DWORD size = sizeof(guid);
    const LSTATUS status =
        RegGetValueW(devices, key, L"guid", RRF_RT_REG_BINARY, nullptr, &guid, &size);
    return status == ERROR_SUCCESS ? QUuid(guid).toString().toUpper() : QString();
}

} // namespace

WinePulseDevices WinePulseDevices::standIns()
{
    WinePulseDevices result;
    for (const char* guid : Defaults) {
        result.m_guids.insert(QString::fromLatin1(guid));
    }
    HKEY devices = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, Devices, 0, KEY_READ, &devices) != ERROR_SUCCESS) {
        return result;
    }
    wchar_t key[LongestKey + 1] = {};
    for (DWORD i = 0;; ++i) {
        DWORD length = LongestKey + 1;
        if (RegEnumKeyExW(devices, i, key, &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS) {
            break;
        }
        if (isMonitor(QString::fromWCharArray(key))) {
            result.m_guids.insert(guidOf(devices, key));
        }
    }
    RegCloseKey(devices);
    return result;
}

bool WinePulseDevices::contain(const QString& endpointId) const
{
    return m_guids.contains(endpointId.section(QLatin1Char('.'), -1).toUpper());
}

} // namespace Platform
