// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHostAddress>
#include <vector>

namespace Platform {

// How many requests a second are answered: so many of each client, which is an address and a port,
// so many of each host, and so many in all. Whoever asks for more takes it from nobody else. The
// counters have a fixed place in memory, however many addresses somebody invents; two clients that
// share one by chance share its budget. Knows no clock: times are given to it.
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
