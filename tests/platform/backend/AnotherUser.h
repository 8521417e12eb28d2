// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <unistd.h>

// What asks for the user of this process hears of another one while this exists. So files of this
// user are those of somebody else, which only root could make otherwise. For one source of a test.
namespace TestSupport {

class AnotherUser
{
    Q_DISABLE_COPY(AnotherUser)

public:
    AnotherUser() { s_isPretended = true; }
    ~AnotherUser() { s_isPretended = false; }

    static bool isPretended() { return s_isPretended; }

private:
    static inline bool s_isPretended = false;
};

} // namespace TestSupport

// Goes before that of the C library.
extern "C" Q_DECL_EXPORT uid_t geteuid() noexcept
{
    return TestSupport::AnotherUser::isPretended() ? ::getuid() + 1 : ::getuid();
}
