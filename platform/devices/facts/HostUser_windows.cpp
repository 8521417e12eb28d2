// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/facts/HostUser.h"

#include <array>
#include <memory>
#include <windows.h>
// Must follow windows.h.
#include <lm.h>
#define SECURITY_WIN32
#include <security.h>

namespace Platform {

namespace {

using Text = std::array<wchar_t, 1024>;

QString nameAtLogin()
{
    Text text = {};
    auto size = static_cast<DWORD>(text.size());
    return GetUserNameW(text.data(), &size) ? QString::fromWCharArray(text.data()) : QString();
}

// Accounts of a domain. For others it fails.
QString nameInTheDirectory()
{
    Text text = {};
    auto size = static_cast<ULONG>(text.size());
    return GetUserNameExW(NameDisplay, text.data(), &size) ? QString::fromWCharArray(text.data())
                                                           : QString();
}

// Accounts of this machine, also those that belong to one on the net.
QString nameOnThisMachine(const QString& login)
{
    LPBYTE found = nullptr;
    if (NetUserGetInfo(nullptr, reinterpret_cast<LPCWSTR>(login.utf16()), 10, &found) !=
        NERR_Success) {
        return {};
    }
    const std::unique_ptr<BYTE, decltype(&NetApiBufferFree)> buffer(found, &NetApiBufferFree);
    const wchar_t* name = reinterpret_cast<const USER_INFO_10*>(buffer.get())->usri10_full_name;
    return name ? QString::fromWCharArray(name) : QString();
}

} // namespace

HostUser HostUser::current()
{
    const QString login = nameAtLogin();
    QString name = nameInTheDirectory().trimmed();
    if (name.isEmpty()) {
        name = nameOnThisMachine(login).trimmed();
    }
    return {login, name};
}

} // namespace Platform
