// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/StunClient.h"

#include "platform/devices/network/NetworkSystem.h"
#include "platform/devices/network/StunAgent.h"

#include <QRandomGenerator>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstring>

namespace Platform {

namespace {

constexpr int MaxRequestSize = 256;
constexpr auto NoUsageFlags = StunAgentUsageFlags(0);

// 96 random bits behind the cookie (RFC 8489, section 5). The library's own come from GnuTLS, which
// keeps some memory for each thread that ever asked it, and each dialog has a thread of its own.
StunId newId()
{
    StunId id = {};
    std::array<quint32, sizeof(id) / sizeof(quint32)> words = {};
    QRandomGenerator::system()->fillRange(words.data(), qsizetype(words.size()));
    words[0] = qToBigEndian(quint32(STUN_MAGIC_COOKIE));
    std::memcpy(id.data(), words.data(), sizeof(id));
    return id;
}

const quint8* bytesOf(const QByteArray& data)
{
    return reinterpret_cast<const quint8*>(data.constData());
}

} // namespace

StunClient::StunClient() : m_agent(std::make_unique<StunAgent>(NoUsageFlags))
{
}

StunClient::~StunClient() = default;

bool StunClient::prepare()
{
    return m_agent->prepare();
}

std::optional<StunClient::Request> StunClient::createRequest()
{
    if (!prepare()) {
        return {};
    }
    Request request{newId(), QByteArray(MaxRequestSize, Qt::Uninitialized)};
    StunMessage message = {};
    message.agent = m_agent->get();
    message.buffer = reinterpret_cast<quint8*>(request.datagram.data());
    message.buffer_len = size_t(request.datagram.size());
    if (!(*m_agent)->initMessage(&message, STUN_REQUEST, STUN_BINDING, request.id.data())) {
        return {};
    }
    const size_t length = (*m_agent)->finishMessage(m_agent->get(), &message, nullptr, 0);
    if (length == 0) {
        return {};
    }
    request.datagram.truncate(int(length));
    return request;
}

void StunClient::forget(const StunId& id)
{
    StunId copy = id; // the library's parameter isn't const
    if (prepare()) {
        (*m_agent)->forgetTransaction(m_agent->get(), copy.data());
    }
}

std::optional<StunClient::Answer> StunClient::readAnswer(const QByteArray& datagram)
{
    StunMessage message;
    if (!prepare() ||
        (*m_agent)->validate(m_agent->get(), &message, bytesOf(datagram), size_t(datagram.size()),
                             nullptr, nullptr) != STUN_VALIDATION_SUCCESS) {
        return {};
    }
    sockaddr_storage mapped = {};
    sockaddr_storage alternate = {};
    socklen_t mappedLength = sizeof(mapped);
    socklen_t alternateLength = sizeof(alternate);
    const StunUsageBindReturn outcome =
        (*m_agent)->processBinding(&message, reinterpret_cast<sockaddr*>(&mapped), &mappedLength,
                                   reinterpret_cast<sockaddr*>(&alternate), &alternateLength);
    if (outcome == STUN_USAGE_BIND_RETURN_INVALID) {
        return {};
    }
    Answer answer;
    (*m_agent)->idOf(&message, answer.id.data());
    if (outcome == STUN_USAGE_BIND_RETURN_SUCCESS) {
        answer.clientAddress = QHostAddress(reinterpret_cast<const sockaddr*>(&mapped));
    }
    return answer;
}

} // namespace Platform
