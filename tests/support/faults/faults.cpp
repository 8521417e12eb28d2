// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

// Preloaded into a program (LD_PRELOAD), makes calls to the system slow or fail, as the environment
// says:
//   FAULT_SYNC_MS=N     every fsync() and fdatasync() takes so long
//   FAULT_WRITE_MS=N    every write() to a file below FAULT_UNDER takes so long
//   FAULT_LOOKUP_MS=N   every name is looked up for so long, and isn't found
//   FAULT_CLOCK_S=N     after FAULT_CLOCK_MS, the wall clock jumps by so many seconds
// and which call fails, as CallFault reads it:
//   FAULT_THREAD, FAULT_SOCKET
//   FAULT_OPEN, FAULT_READ, FAULT_WRITE, FAULT_SYNC, FAULT_RENAME: of files below FAULT_UNDER
// FAULT_MEMORY is a library of its own, beside this one.

#include "FaultPlan.h"

#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <netdb.h>
#include <pthread.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr long NsPerMs = 1000000;
constexpr long MsPerS = 1000;

CallFault threads("FAULT_THREAD");
CallFault sockets("FAULT_SOCKET");
CallFault opens("FAULT_OPEN");
CallFault reads("FAULT_READ");
CallFault writes("FAULT_WRITE");
CallFault syncs("FAULT_SYNC");
CallFault renames("FAULT_RENAME");

template <typename Function>
Function original(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

// -1 with the error if the call is to fail, else 0.
int failed(CallFault& calls, int error)
{
    if (!calls.strikes()) {
        return 0;
    }
    errno = error;
    return -1;
}

int failedOpen(const char* path)
{
    return FaultPlan::isUnder(path) ? failed(opens, EIO) : 0;
}

int synced(const char* name, int file)
{
    FaultPlan::pause("FAULT_SYNC_MS");
    if (FaultPlan::isUnder(file) && failed(syncs, EIO) != 0) {
        return -1;
    }
    return original<int (*)(int)>(name)(file);
}

long nowMs()
{
    static const auto real = original<decltype(&::clock_gettime)>("clock_gettime");
    timespec now = {};
    real(CLOCK_MONOTONIC, &now);
    return now.tv_sec * MsPerS + now.tv_nsec / NsPerMs;
}

const long startMs = nowMs();

time_t clockOffset()
{
    const int seconds = FaultPlan::valueOf("FAULT_CLOCK_S");
    return seconds != 0 && nowMs() - startMs > FaultPlan::valueOf("FAULT_CLOCK_MS") ? seconds : 0;
}

// arguments: what follows the flags of open().
int opened(const char* name, const char* path, int flags, va_list arguments)
{
    const bool makesFile = (flags & (O_CREAT | O_TMPFILE)) != 0;
    const mode_t mode = makesFile ? va_arg(arguments, mode_t) : 0;
    if (failedOpen(path) != 0) {
        return -1;
    }
    return original<int (*)(const char*, int, ...)>(name)(path, flags, mode);
}

int openedAnew(const char* name, char* path, int flags)
{
    return failedOpen(path) != 0 ? -1 : original<int (*)(char*, int)>(name)(path, flags);
}

} // namespace

extern "C" {

int fsync(int file)
{
    return synced("fsync", file);
}

int fdatasync(int file)
{
    return synced("fdatasync", file);
}

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int result = opened("open", path, flags, arguments);
    va_end(arguments);
    return result;
}

int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int result = opened("open64", path, flags, arguments);
    va_end(arguments);
    return result;
}

int mkostemp(char* path, int flags)
{
    return openedAnew("mkostemp", path, flags);
}

int mkostemp64(char* path, int flags)
{
    return openedAnew("mkostemp64", path, flags);
}

ssize_t read(int file, void* buffer, size_t size)
{
    if (FaultPlan::asksFor("FAULT_READ") && FaultPlan::isUnder(file) && failed(reads, EIO) != 0) {
        return -1;
    }
    static const auto real = original<decltype(&::read)>("read");
    return real(file, buffer, size);
}

ssize_t write(int file, const void* buffer, size_t size)
{
    const bool isHit =
        (FaultPlan::asksFor("FAULT_WRITE") || FaultPlan::asksFor("FAULT_WRITE_MS")) &&
        FaultPlan::isUnder(file);
    if (isHit) {
        FaultPlan::pause("FAULT_WRITE_MS");
        if (failed(writes, ENOSPC) != 0) {
            return -1;
        }
    }
    static const auto real = original<decltype(&::write)>("write");
    return real(file, buffer, size);
}

int rename(const char* from, const char* to) noexcept
{
    if (FaultPlan::isUnder(to) && failed(renames, EACCES) != 0) {
        return -1;
    }
    return original<int (*)(const char*, const char*)>("rename")(from, to);
}

int socket(int domain, int type, int protocol) noexcept
{
    if (failed(sockets, EMFILE) != 0) {
        return -1;
    }
    return original<int (*)(int, int, int)>("socket")(domain, type, protocol);
}

int clock_gettime(clockid_t clock, timespec* now) noexcept
{
    static const auto real = original<int (*)(clockid_t, timespec*)>("clock_gettime");
    const int result = real(clock, now);
    if (result == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE)) {
        now->tv_sec += clockOffset();
    }
    return result;
}

int gettimeofday(timeval* now, void* zone) noexcept
{
    static const auto real = original<int (*)(timeval*, void*)>("gettimeofday");
    const int result = real(now, zone);
    now->tv_sec += clockOffset();
    return result;
}

time_t time(time_t* now) noexcept
{
    static const auto real = original<time_t (*)(time_t*)>("time");
    const time_t result = real(nullptr) + clockOffset();
    if (now) {
        *now = result;
    }
    return result;
}

int getaddrinfo(const char* host, const char* service, const addrinfo* hints, addrinfo** found)
{
    const auto real = original<decltype(&::getaddrinfo)>("getaddrinfo");
    addrinfo numeric = hints ? *hints : addrinfo();
    numeric.ai_flags |= AI_NUMERICHOST;
    const int result = real(host, service, &numeric, found);
    if (result != EAI_NONAME || FaultPlan::valueOf("FAULT_LOOKUP_MS") == 0) {
        return real(host, service, hints, found);
    }
    FaultPlan::pause("FAULT_LOOKUP_MS");
    return EAI_AGAIN;
}

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*),
                   void* argument)
{
    if (threads.strikes()) {
        return EAGAIN;
    }
    return original<decltype(&::pthread_create)>("pthread_create")(thread, attributes, run,
                                                                   argument);
}

} // extern "C"
