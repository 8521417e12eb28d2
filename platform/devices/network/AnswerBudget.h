// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHostAddress>
#include <vector>

namespace Platform {

// How many requests are answered in a second. Each client (an address and a port) and each host has
// a limit of its own, and there is one for all together, so a flood from one client doesn't use up
// what the others may ask. The number of counters is fixed, so invented addresses take no memory;
// two clients that share a counter by chance share its limit. The caller says what time it is.
class AnswerBudget
{
public:
    static constexpr int PerClient = 50; // a check asks ten times a second
    static constexpr int PerHost = 1000; // a school may stand behind one address
    static constexpr int InAll = 20000;

    explicit AnswerBudget(quint64 secret); // so that nobody can aim at a client's counter

    bool take(const QHostAddress& address, quint16 port, qint64 nowMs);

private:
    using Counters = std::vector<quint16>;

    quint16& counter(Counters& counters, quint64 who) const;

    const quint64 m_secret;
    qint64 m_startMs = 0; // of the present second
    Counters m_ofClients;
    Counters m_ofHosts;
    int m_inAll = 0;
};

} // namespace Platform
