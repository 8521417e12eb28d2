// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <cstdint>
#include <cstdlib>

// What the fuzzers share.
namespace FuzzInput {

inline QByteArray bytes(const std::uint8_t* data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), int(size));
}

// Some classes need one; it lives as long as the program.
inline void application()
{
    static int count = 1;
    static char name[] = "fuzzer";
    static char* arguments[] = {name, nullptr};
    static QCoreApplication instance(count, arguments);
}

// Ends the fuzzer with a finding if this is false.
inline void require(bool isSo)
{
    if (!isSo) {
        std::abort();
    }
}

} // namespace FuzzInput
