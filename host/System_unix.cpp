// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/System.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

// Only the address sanitizer has it: it looks for leaks at an end that runs destructors.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's name
extern "C" void __lsan_do_leak_check() __attribute__((weak));

namespace {

constexpr std::size_t NeededFiles = 64;
constexpr rlim_t UsualFiles = 1024;

volatile std::sig_atomic_t theProcessWasStopped = 0;

} // namespace

// A reader of our output may go: that is a write error, not the end of the program. If a standard
// stream is closed, the next opened file would get its number, and all output.
void System::prepareProcess()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGCONT, [](int) { theProcessWasStopped = 1; });
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

// Qt, GLib and the sound libraries end the process if they get none in the middle of their work.
QString System::problemOfLimits()
{
    rlimit limit = {};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = std::max(limit.rlim_cur, std::min<rlim_t>(limit.rlim_max, UsualFiles));
    setrlimit(RLIMIT_NOFILE, &limit);
    std::array<int, NeededFiles> tried = {};
    std::size_t count = 0;
    while (count < tried.size() && (tried[count] = fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0)) >= 0) {
        ++count;
    }
    for (std::size_t i = 0; i < count; ++i) {
        close(tried[i]);
    }
    return count == tried.size()
               ? QString()
               : QStringLiteral("only %1 more files may be open at once, and %2 are needed: raise "
                                "the limit, such as by \"ulimit -n %3\"")
                     .arg(count)
                     .arg(tried.size())
                     .arg(UsualFiles);
}

bool System::isOpenToOthers(const QString& path)
{
    return (QFile::permissions(path) & (QFile::ReadOther | QFile::WriteOther)) != 0;
}

bool System::hasBeenStopped()
{
    const bool result = theProcessWasStopped != 0;
    theProcessWasStopped = 0;
    return result;
}

void System::leave(ExitCode code)
{
    if (__lsan_do_leak_check) {
        __lsan_do_leak_check();
    }
    std::fflush(nullptr);
    std::_Exit(static_cast<int>(code));
}
