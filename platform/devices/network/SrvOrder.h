// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>
#include <vector>

namespace Platform {

// One SRV record: a server of a domain.
struct SrvRecord
{
    QString target;
    quint16 port = 0;
    quint16 priority = 0;
    quint16 weight = 0;
};

// The order in which the servers of a domain are tried (RFC 2782): the lowest priority first, and
// among equal ones by chance, each as often as its weight says.
namespace SrvOrder {

// A number from 0 to the given one, both included.
using Chance = std::function<quint32(quint32 most)>;

std::vector<SrvRecord> of(std::vector<SrvRecord> records, const Chance& chance);

} // namespace SrvOrder

} // namespace Platform
