// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/StunAnswerer.h"

#include <QHostAddress>
#include <algorithm>
#include <cstring>
#include <netinet/in.h>
#include <stun/stunagent.h>

namespace Platform {

namespace {

constexpr int MaxAnswerSize = 512;

socklen_t fill(sockaddr_storage& storage, const QHostAddress& address, quint16 port)
{
    // A socket for both protocols gives addresses of IPv4 as ones of IPv6.
    bool isIPv4 = false;
    const quint32 plainAddress = address.toIPv4Address(&isIPv4);
    if (isIPv4) {
        sockaddr_in plain = {};
        plain.sin_family = AF_INET;
        plain.sin_port = htons(port);
        plain.sin_addr.s_addr = htonl(plainAddress);
        std::memcpy(&storage, &plain, sizeof(plain));
        return sizeof(plain);
    }
    sockaddr_in6 plain = {};
    plain.sin6_family = AF_INET6;
    plain.sin6_port = htons(port);
    const Q_IPV6ADDR bytes = address.toIPv6Address();
    std::memcpy(&plain.sin6_addr, &bytes, sizeof(bytes));
    std::memcpy(&storage, &plain, sizeof(plain));
    return sizeof(plain);
}

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
        sockaddr_storage mapped = {};
        const socklen_t mappedLength = fill(mapped, sender, port);
        if (stun_agent_init_response(m_agent.get(), &response, buffer, MaxAnswerSize, &request) &&
            stun_message_append_xor_addr(&response, STUN_ATTRIBUTE_XOR_MAPPED_ADDRESS, &mapped,
                                         mappedLength) == STUN_MESSAGE_RETURN_SUCCESS) {
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
