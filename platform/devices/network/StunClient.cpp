// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/StunClient.h"

#include <algorithm>
#include <stun/stunagent.h>
#include <stun/usages/bind.h>
#include <sys/socket.h>

namespace Platform {

namespace {

constexpr int MaxRequestSize = 256;
constexpr auto NoUsageFlags = StunAgentUsageFlags(0);

const quint8* bytesOf(const QByteArray& data)
{
    return reinterpret_cast<const quint8*>(data.constData());
}

} // namespace

StunClient::StunClient() : m_agent(std::make_unique<stun_agent_t>())
{
    stun_agent_init(m_agent.get(), STUN_ALL_KNOWN_ATTRIBUTES, STUN_COMPATIBILITY_RFC5389,
                    NoUsageFlags);
}

StunClient::~StunClient() = default;

std::optional<StunClient::Request> StunClient::createRequest()
{
    Request request;
    request.datagram.resize(MaxRequestSize);
    StunMessage message;
    const size_t length = stun_usage_bind_create(m_agent.get(), &message,
                                                 reinterpret_cast<quint8*>(request.datagram.data()),
                                                 size_t(request.datagram.size()));
    if (length == 0) {
        return {};
    }
    request.datagram.truncate(int(length));
    stun_message_id(&message, request.id.data());
    return request;
}

void StunClient::forget(const StunId& id)
{
    StunId copy = id; // the library's parameter isn't const
    stun_agent_forget_transaction(m_agent.get(), copy.data());
}

std::optional<StunClient::Answer> StunClient::readAnswer(const QByteArray& datagram)
{
    StunMessage message;
    if (stun_agent_validate(m_agent.get(), &message, bytesOf(datagram), size_t(datagram.size()),
                            nullptr, nullptr) != STUN_VALIDATION_SUCCESS) {
        return {};
    }
    sockaddr_storage mapped = {};
    sockaddr_storage alternate = {};
    socklen_t mappedLength = sizeof(mapped);
    socklen_t alternateLength = sizeof(alternate);
    const StunUsageBindReturn outcome =
        stun_usage_bind_process(&message, reinterpret_cast<sockaddr*>(&mapped), &mappedLength,
                                reinterpret_cast<sockaddr*>(&alternate), &alternateLength);
    if (outcome == STUN_USAGE_BIND_RETURN_INVALID) {
        return {};
    }
    Answer answer;
    stun_message_id(&message, answer.id.data());
    if (outcome == STUN_USAGE_BIND_RETURN_SUCCESS) {
        answer.clientAddress = QHostAddress(reinterpret_cast<const sockaddr*>(&mapped));
    }
    return answer;
}

} // namespace Platform
