// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/stun/StunFunctions.h"

const Platform::StunFunctions classroomStunFunctions = {
    &stun_agent_init,
    &stun_agent_validate,
    &stun_agent_finish_message,
    &stun_agent_forget_transaction,
    &stun_agent_init_response,
    &stun_agent_build_unknown_attributes_error,
    &stun_message_init,
    &stun_message_id,
    &stun_message_get_class,
    &stun_message_get_method,
    &stun_message_append_xor_addr,
    &stun_usage_bind_process,
};
