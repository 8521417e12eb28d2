// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT

// Preloaded into a program (LD_PRELOAD), makes allocations of at least FAULT_MEMORY_BYTES fail,
// as CallFault reads FAULT_MEMORY. Not for programs with a sanitizer, which has its own allocator.

#include "FaultPlan.h"

#include <cerrno>
#include <cstddef>

// NOLINTBEGIN(bugprone-reserved-identifier): the names of the C library's own allocator
extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

} // extern "C"
// NOLINTEND(bugprone-reserved-identifier)

namespace {

CallFault allocations("FAULT_MEMORY");

bool isRefused(std::size_t size)
{
    constexpr std::size_t AlwaysGiven = 4096; // also while the environment isn't there yet
    return size > AlwaysGiven &&
           size >= static_cast<std::size_t>(FaultPlan::valueOf("FAULT_MEMORY_BYTES")) &&
           allocations.strikes();
}

void* refuse()
{
    errno = ENOMEM;
    return nullptr;
}

} // namespace

extern "C" {

void* malloc(std::size_t size)
{
    return isRefused(size) ? refuse() : __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    return isRefused(count * size) ? refuse() : __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size)
{
    return isRefused(size) ? refuse() : __libc_realloc(block, size);
}

} // extern "C"
