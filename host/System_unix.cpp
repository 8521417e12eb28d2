// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/System.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

// Only the address sanitizer has it: it looks for leaks at an end that runs destructors.
extern "C" void __lsan_do_leak_check()
    __attribute__((weak)); // NOLINT(bugprone-reserved-identifier)

// A reader of our output may go: that is a write error, not the end of the program. If a standard
// stream is closed, the next opened file would get its number, and all output.
void System::prepareProcess()
{
    std::signal(SIGPIPE, SIG_IGN);
    int descriptor = STDIN_FILENO;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO) {
        descriptor = open("/dev/null", O_RDWR);
    }
    if (descriptor >= 0) {
        close(descriptor);
    }
}

QStringList System::arguments(int argc, char* argv[])
{
    QStringList texts;
    for (int i = 0; i < argc; ++i) {
        texts << QString::fromLocal8Bit(argv[i]);
    }
    return texts;
}

bool System::isTerminal(std::FILE* file)
{
    return isatty(fileno(file)) != 0;
}

void System::write(std::FILE* file, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file);
    std::fflush(file);
}

void System::leave(ExitCode code)
{
    if (__lsan_do_leak_check) {
        __lsan_do_leak_check();
    }
    std::fflush(nullptr);
    std::_Exit(static_cast<int>(code));
}
