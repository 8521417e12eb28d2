// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Platform {

// Qt 5 has no limit for the head of an HTTP answer, and doesn't say how much of it has come. While
// it comes, Qt's thread hears nothing else. So the kernel is asked.
namespace FloodGate {

// Cuts the TCP connections of this process to a server's port that have received more bytes. True
// if there was one. On Windows it can't be known, and none is cut.
bool cutAbove(qint64 maxBytes, quint16 port);

} // namespace FloodGate
} // namespace Platform
