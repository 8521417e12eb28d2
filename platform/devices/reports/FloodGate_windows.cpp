// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/reports/FloodGate.h"

// Windows tells the bytes of a connection only to administrators, or to whoever holds the socket,
// which Qt doesn't give away.
bool Platform::FloodGate::cutAbove(qint64 /*maxBytes*/, quint16 /*port*/)
{
    return false;
}
