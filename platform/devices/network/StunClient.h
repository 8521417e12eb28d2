// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <array>
#include <memory>
#include <optional>

namespace Platform {

class StunAgent;

using StunId = std::array<quint8, 16>;

// Builds binding requests and reads their answers (RFC 8489). Every request stays open until it is
// answered or forgotten, and only so many can be open at once.
class StunClient
{
public:
    struct Request
    {
        StunId id;
        QByteArray datagram;
    };
    struct Answer
    {
        StunId id;
        QHostAddress clientAddress; // as the server saw it; null in an error answer
    };

    StunClient();
    ~StunClient();

    // Loads what STUN messages are written and read with, which takes some milliseconds. The first
    // of the other calls does so, too. False if it isn't there.
    bool prepare();

    std::optional<Request> createRequest(); // nothing while too many are open
    void forget(const StunId& id);
    // Nothing where the datagram isn't an answer to an open request, which it closes otherwise.
    std::optional<Answer> readAnswer(const QByteArray& datagram);

private:
    std::unique_ptr<StunAgent> m_agent;
};

} // namespace Platform
