// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Platform {

// A regular file that is open for reading, for libraries that take a descriptor. Opening it never
// waits for the other end of a pipe. One more source file for each system.
class SoundFile
{
public:
    SoundFile(const QString& path, long long maxBytes);
    ~SoundFile();
    SoundFile(const SoundFile&) = delete;
    SoundFile& operator=(const SoundFile&) = delete;

    int descriptor() const { return m_descriptor; }
    QString refusal() const { return m_refusal; } // why it may not be read; empty if it may

private:
    // They return -1 with errno, and NotRegular for a folder, a pipe or a device.
    static constexpr long long NotRegular = -2;
    static int openFile(const QString& path);
    static long long sizeOf(int descriptor);

    int m_descriptor;
    QString m_refusal;
};

} // namespace Platform
