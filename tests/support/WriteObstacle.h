// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#ifdef Q_OS_UNIX

#include <csignal>
#include <sys/resource.h>

// While it lives, no file of this process may grow above so many bytes, as on a disk that is full.
class WriteObstacle
{
public:
    explicit WriteObstacle(const QString&, rlim_t bytes = 0)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit full = {bytes, m_limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }

    ~WriteObstacle()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }

    Q_DISABLE_COPY(WriteObstacle)

private:
    using Handler = void (*)(int);

    Handler m_handler;
    rlimit m_limit = {};
};

#else

#include <windows.h>

// While it lives, the file is open and shared for reading alone, as many programs open theirs.
class WriteObstacle
{
public:
    explicit WriteObstacle(const QString& path, int = 0)
        : m_file(CreateFileW(reinterpret_cast<const wchar_t*>(path.utf16()), GENERIC_READ,
                             FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                             nullptr))
    {
    }

    ~WriteObstacle() { CloseHandle(m_file); }

    Q_DISABLE_COPY(WriteObstacle)

private:
    HANDLE m_file;
};

#endif
