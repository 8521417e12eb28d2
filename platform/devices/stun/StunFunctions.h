// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stun/stunagent.h>
#include <stun/usages/bind.h>

namespace Platform {

// What is used of libnice. On Unix, that library needs so many others that loading them would keep
// the dialog from opening, so they are loaded on the thread that first calls get().
struct StunFunctions
{
    decltype(&stun_agent_init) initAgent;
    decltype(&stun_agent_validate) validate;
    decltype(&stun_agent_finish_message) finishMessage;
    decltype(&stun_agent_forget_transaction) forgetTransaction;
    decltype(&stun_agent_init_response) initResponse;
    decltype(&stun_agent_build_unknown_attributes_error) buildUnknownAttributesError;
    decltype(&stun_message_init) initMessage;
    decltype(&stun_message_id) idOf;
    decltype(&stun_message_get_class) classOf;
    decltype(&stun_message_get_method) methodOf;
    decltype(&stun_message_append_xor_addr) appendXorAddress;
    decltype(&stun_usage_bind_process) processBinding;

    // Null if the library can't be loaded; the first call warns of that. Any thread.
    static const StunFunctions* get();
};

} // namespace Platform

extern "C" const Platform::StunFunctions classroomStunFunctions;
