// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

#include <QString>

namespace Platform {

// What the server says went wrong. Its text is in the server's language and for the log only; the
// number is an errno value, or 0 if the server didn't say one.
struct ServerError
{
    ServerError() = default;
    // A result is negative, as the server gives it. Without one, the text may contain it.
    explicit ServerError(const char* text, int result = 0);

    bool isEmpty() const { return number == 0 && text.isEmpty(); }
    DeviceState state() const; // Busy, Denied or Failed

    int number = 0;
    QString text;
};

} // namespace Platform
