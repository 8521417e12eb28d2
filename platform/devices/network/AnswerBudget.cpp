// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/AnswerBudget.h"

#include <algorithm>

namespace Platform {

namespace {

constexpr std::size_t CounterCount = 65536;
constexpr qint64 SecondMs = 1000;

// SplitMix64's finalizer: every bit of the result depends on every bit of the value.
quint64 mixed(quint64 value)
{
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31U);
}

// An IPv6 host may take any address of its /64.
quint64 hostOf(const QHostAddress& address)
{
    bool isIPv4 = false;
    const quint32 plainAddress = address.toIPv4Address(&isIPv4);
    if (isIPv4) {
        return plainAddress;
    }
    constexpr int PrefixBytes = 8;
    const Q_IPV6ADDR bytes = address.toIPv6Address();
    quint64 prefix = 0;
    for (int i = 0; i < PrefixBytes; ++i) {
        prefix = prefix << 8U | bytes[i];
    }
    return prefix;
}

bool takeOne(quint16& count, int limit)
{
    if (count >= limit) {
        return false;
    }
    ++count;
    return true;
}

} // namespace

AnswerBudget::AnswerBudget(quint64 secret)
    : m_secret(secret), m_ofClients(CounterCount), m_ofHosts(CounterCount)
{
}

bool AnswerBudget::take(const QHostAddress& address, quint16 port, qint64 nowMs)
{
    if (nowMs - m_startMs >= SecondMs) {
        m_startMs = nowMs;
        m_inAll = 0;
        std::fill(m_ofClients.begin(), m_ofClients.end(), quint16(0));
        std::fill(m_ofHosts.begin(), m_ofHosts.end(), quint16(0));
    }
    const quint64 host = mixed(hostOf(address) ^ m_secret);
    // A client that asks for too much must not take it from its neighbours behind one address.
    const bool mayAnswer = takeOne(counter(m_ofClients, host + port), PerClient) &&
                           takeOne(counter(m_ofHosts, host), PerHost) && m_inAll < InAll;
    m_inAll += mayAnswer ? 1 : 0;
    return mayAnswer;
}

quint16& AnswerBudget::counter(Counters& counters, quint64 who) const
{
    return counters[mixed(who ^ m_secret) % counters.size()];
}

} // namespace Platform
