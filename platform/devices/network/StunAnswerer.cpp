// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/StunAnswerer.h"

#include "platform/devices/network/SocketAddress.h"

#include <QHostAddress>
#include <stun/stunagent.h>

namespace Platform {

namespace {

constexpr int MaxAnswerSize = 512;

} // namespace

StunAnswerer::StunAnswerer() : m_agent(std::make_unique<stun_agent_t>())
{
    stun_agent_init(m_agent.get(), STUN_ALL_KNOWN_ATTRIBUTES, STUN_COMPATIBILITY_RFC5389,
                    STUN_AGENT_USAGE_IGNORE_CREDENTIALS);
}

StunAnswerer::~StunAnswerer() = default;

QByteArray StunAnswerer::answer(const QByteArray& datagram, const QHostAddress& sender,
                                quint16 port)
{
    StunMessage request;
    const StunValidationStatus status = stun_agent_validate(
        m_agent.get(), &request, reinterpret_cast<const quint8*>(datagram.constData()),
        size_t(datagram.size()), nullptr, nullptr);
    const bool isKnown = status == STUN_VALIDATION_SUCCESS;
    if ((!isKnown && status != STUN_VALIDATION_UNKNOWN_REQUEST_ATTRIBUTE) ||
        stun_message_get_class(&request) != STUN_REQUEST ||
        stun_message_get_method(&request) != STUN_BINDING) {
        return {};
    }
    QByteArray result(MaxAnswerSize, '\0');
    auto* const buffer = reinterpret_cast<quint8*>(result.data());
    StunMessage response;
    size_t length = 0;
    if (isKnown) {
        const SocketAddress mapped(sender, port);
        if (stun_agent_init_response(m_agent.get(), &response, buffer, MaxAnswerSize, &request) &&
            stun_message_append_xor_addr(&response, STUN_ATTRIBUTE_XOR_MAPPED_ADDRESS,
                                         &mapped.storage,
                                         mapped.size) == STUN_MESSAGE_RETURN_SUCCESS) {
            length = stun_agent_finish_message(m_agent.get(), &response, nullptr, 0);
        }
    } else {
        length = stun_agent_build_unknown_attributes_error(m_agent.get(), &response, buffer,
                                                           MaxAnswerSize, &request);
    }
    result.truncate(int(length));
    return result;
}

} // namespace Platform
