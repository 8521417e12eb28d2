// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <memory>

class QHostAddress;

namespace Platform {

class StunAgent;

// Answers binding requests (RFC 8489) with the address they came from. The first may load a
// library.
class StunAnswerer
{
public:
    StunAnswerer();
    ~StunAnswerer();

    // Empty where the datagram deserves no answer.
    QByteArray answer(const QByteArray& datagram, const QHostAddress& sender, quint16 port);

private:
    std::unique_ptr<StunAgent> m_agent;
};

} // namespace Platform
