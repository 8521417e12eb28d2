// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/StunAgent.h"

namespace Platform {

bool StunAgent::prepare()
{
    if (!m_functions) {
        m_functions = StunFunctions::get();
        if (m_functions) {
            m_functions->initAgent(&m_agent, STUN_ALL_KNOWN_ATTRIBUTES, STUN_COMPATIBILITY_RFC5389,
                                   m_flags);
        }
    }
    return m_functions != nullptr;
}

} // namespace Platform
