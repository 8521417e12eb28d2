// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/SrvOrder.h"

#include <algorithm>
#include <numeric>

namespace Platform {

namespace {

using Place = std::vector<SrvRecord>::iterator;

// Records without weight come first, so that they have a small chance, too.
Place drawn(Place begin, Place end, const SrvOrder::Chance& chance)
{
    const quint32 sum =
        std::accumulate(begin, end, quint32(0), [](quint32 weights, const SrvRecord& record) {
            return weights + record.weight;
        });
    const quint32 wanted = chance(sum);
    quint32 reached = 0;
    return std::find_if(begin, end, [&reached, wanted](const SrvRecord& record) {
        reached += record.weight;
        return reached >= wanted;
    });
}

} // namespace

std::vector<SrvRecord> SrvOrder::of(std::vector<SrvRecord> records, const Chance& chance)
{
    std::stable_sort(records.begin(), records.end(), [](const SrvRecord& a, const SrvRecord& b) {
        return a.priority != b.priority ? a.priority < b.priority : a.weight == 0 && b.weight > 0;
    });
    for (Place next = records.begin(); next != records.end(); ++next) {
        const Place end = std::find_if(next, records.end(), [next](const SrvRecord& record) {
            return record.priority != next->priority;
        });
        const Place first = drawn(next, end, chance);
        std::rotate(next, first, first + 1);
    }
    return records;
}

} // namespace Platform
