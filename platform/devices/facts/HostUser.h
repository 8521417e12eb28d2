// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <sys/types.h>

namespace Platform {

// The operating system's user this process runs as. Both texts are foreign.
struct HostUser
{
    QString loginName; // the number where the user has no name
    QString realName;  // may be empty

    // Both ask the user database, which may be a slow server: not for the GUI thread.
    static HostUser current();
#ifdef Q_OS_UNIX
    static HostUser withId(uid_t id);
#endif
};

} // namespace Platform
