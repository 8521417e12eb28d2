// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/FoundVolume.h"

namespace Platform {

struct PulseDevice;

// The volume of the current device as the user sees it, and as it was found. The server reports
// every change, the user's own ones too, and those late: while an order is on its way, what the
// server says is old news.
class DeviceVolume
{
public:
    explicit DeviceVolume(int maximum);

    int percent() const { return m_percent; }
    void reset(const PulseDevice* device); // it has just become the current one; null for none
    int set(int percent);                  // the user's hand; returns it within the bounds
    void await(quint64 order);             // the order that carries it out
    // Takes what the server reported; true where somebody else moved it.
    bool take(const PulseDevice& device, quint64 settledOrder);

    // Volume and mute as they were found and as they are left, for the report.
    void addTo(QJsonObject& figures) const;

private:
    int percentOf(const PulseDevice& device) const;

    int m_maximum;
    int m_percent = 0;
    bool m_isMuted = false;
    quint64 m_awaitedOrder = 0;
    FoundVolume m_found;
};

} // namespace Platform
