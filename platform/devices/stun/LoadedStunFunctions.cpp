// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/stun/StunFunctions.h"

#include "platform/backend/Log.h"

#include <dlfcn.h>

namespace Platform {

namespace {

// Loaded from here, it is found beside this library.
const StunFunctions* load()
{
    void* const library = ::dlopen(CLASSROOM_STUN_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    void* const functions = library ? ::dlsym(library, "classroomStunFunctions") : nullptr;
    if (!functions) {
        qCWarning(Log::network).noquote()
            << "The network can't be measured: a library is missing:" << ::dlerror();
    }
    return static_cast<const StunFunctions*>(functions);
}

} // namespace

const StunFunctions* StunFunctions::get()
{
    static const StunFunctions* const functions = load();
    return functions;
}

} // namespace Platform
