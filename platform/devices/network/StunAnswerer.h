// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <memory>

class QHostAddress;
struct stun_agent_t;

namespace Platform {

// Answers binding requests (RFC 8489) with the address they came from.
class StunAnswerer
{
public:
    StunAnswerer();
    ~StunAnswerer();

    // Empty where the datagram deserves no answer.
    QByteArray answer(const QByteArray& datagram, const QHostAddress& sender, quint16 port);

private:
    std::unique_ptr<stun_agent_t> m_agent;
};

} // namespace Platform
