// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Platform {

// The volume of the current device as the user sees it. The server reports every change, the user's
// own ones too, and those late: while an order is on its way, what the server says is old news.
class DeviceVolume
{
public:
    int percent() const { return m_percent; }
    void reset(int percent);              // another device became the current one
    void set(int percent, quint64 order); // the user's hand
    // Takes what the server reported; true where somebody else moved it.
    bool take(int percent, quint64 settledOrder);

private:
    int m_percent = 0;
    quint64 m_awaitedOrder = 0;
};

} // namespace Platform
