// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/stun/StunFunctions.h"

namespace Platform {

// libnice's agent with the functions that take it. On one thread at a time.
class StunAgent
{
public:
    explicit StunAgent(StunAgentUsageFlags flags) : m_flags(flags) {}

    // Makes the agent if there is none yet, for which the library may have to be loaded. False if
    // it can't be; nothing else may be called then.
    bool prepare();

    stun_agent_t* get() { return &m_agent; }
    const StunFunctions* operator->() const { return m_functions; }

private:
    StunAgentUsageFlags m_flags;
    const StunFunctions* m_functions = nullptr;
    stun_agent_t m_agent = {};
};

} // namespace Platform
