// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

// Preloaded into a program (LD_PRELOAD), makes calls to the system slow or fail, as the environment
// says:
//   FAULT_SYNC_MS=N     every fsync() and fdatasync() takes so long
//   FAULT_LOOKUP_MS=N   every name is looked up for so long, and isn't found
//   FAULT_THREAD=K      the K-th thread can't be made; with a plus sign behind: nor any later one

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <netdb.h>
#include <pthread.h>
#include <thread>

namespace {

int valueOf(const char* name)
{
    const char* const text = std::getenv(name);
    return text ? std::atoi(text) : 0;
}

void pause(const char* name)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(valueOf(name)));
}

template <typename Function>
Function original(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool isRefusedThread()
{
    static std::atomic<int> count{0};
    const int number = ++count;
    const int refused = valueOf("FAULT_THREAD");
    if (refused == 0) {
        return false;
    }
    const bool isOpenEnded = std::strchr(std::getenv("FAULT_THREAD"), '+') != nullptr;
    return number == refused || (isOpenEnded && number > refused);
}

} // namespace

extern "C" {

int fsync(int file)
{
    pause("FAULT_SYNC_MS");
    return original<int (*)(int)>("fsync")(file);
}

int fdatasync(int file)
{
    pause("FAULT_SYNC_MS");
    return original<int (*)(int)>("fdatasync")(file);
}

int getaddrinfo(const char* host, const char* service, const addrinfo* hints, addrinfo** found)
{
    const auto real = original<decltype(&::getaddrinfo)>("getaddrinfo");
    addrinfo numeric = hints ? *hints : addrinfo();
    numeric.ai_flags |= AI_NUMERICHOST;
    const int result = real(host, service, &numeric, found);
    if (result != EAI_NONAME || valueOf("FAULT_LOOKUP_MS") == 0) {
        return real(host, service, hints, found);
    }
    pause("FAULT_LOOKUP_MS");
    return EAI_AGAIN;
}

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*),
                   void* argument)
{
    if (isRefusedThread()) {
        return EAGAIN;
    }
    return original<decltype(&::pthread_create)>("pthread_create")(thread, attributes, run,
                                                                   argument);
}

} // extern "C"
