// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/StunAnswerer.h"

#include "platform/devices/network/SocketAddress.h"
#include "platform/devices/network/StunAgent.h"

#include <QHostAddress>

namespace Platform {

namespace {

constexpr int MaxAnswerSize = 512;

} // namespace

StunAnswerer::StunAnswerer()
    : m_agent(std::make_unique<StunAgent>(STUN_AGENT_USAGE_IGNORE_CREDENTIALS))
{
}

StunAnswerer::~StunAnswerer() = default;

QByteArray StunAnswerer::answer(const QByteArray& datagram, const QHostAddress& sender,
                                quint16 port)
{
    if (!m_agent->prepare()) {
        return {};
    }
    const StunAgent& stun = *m_agent;
    StunMessage request;
    const StunValidationStatus status = stun->validate(
        m_agent->get(), &request, reinterpret_cast<const quint8*>(datagram.constData()),
        size_t(datagram.size()), nullptr, nullptr);
    const bool isKnown = status == STUN_VALIDATION_SUCCESS;
    if ((!isKnown && status != STUN_VALIDATION_UNKNOWN_REQUEST_ATTRIBUTE) ||
        stun->classOf(&request) != STUN_REQUEST || stun->methodOf(&request) != STUN_BINDING) {
        return {};
    }
    QByteArray result(MaxAnswerSize, '\0');
    auto* const buffer = reinterpret_cast<quint8*>(result.data());
    StunMessage response;
    size_t length = 0;
    if (isKnown) {
        const SocketAddress mapped(sender, port);
        if (stun->initResponse(m_agent->get(), &response, buffer, MaxAnswerSize, &request) &&
            stun->appendXorAddress(&response, STUN_ATTRIBUTE_XOR_MAPPED_ADDRESS, &mapped.storage,
                                   mapped.size) == STUN_MESSAGE_RETURN_SUCCESS) {
            length = stun->finishMessage(m_agent->get(), &response, nullptr, 0);
        }
    } else {
        length = stun->buildUnknownAttributesError(m_agent->get(), &response, buffer, MaxAnswerSize,
                                                   &request);
    }
    result.truncate(int(length));
    return result;
}

} // namespace Platform
