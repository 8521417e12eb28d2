// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/facts/HostUser.h"

#include <pwd.h>
#include <unistd.h>
#include <vector>

namespace Platform {

namespace {

constexpr size_t BufferSize = size_t(64) * 1024;

} // namespace

HostUser HostUser::current()
{
    return withId(getuid());
}

HostUser HostUser::withId(uid_t id)
{
    std::vector<char> buffer(BufferSize);
    passwd entry = {};
    passwd* found = nullptr;
    if (getpwuid_r(id, &entry, buffer.data(), buffer.size(), &found) != 0 || !found) {
        return {QString::number(id), {}};
    }
    // The field holds the name, then office and telephones behind commas.
    const QString details = QString::fromLocal8Bit(found->pw_gecos);
    return {QString::fromLocal8Bit(found->pw_name),
            details.section(QLatin1Char(','), 0, 0).trimmed()};
}

} // namespace Platform
