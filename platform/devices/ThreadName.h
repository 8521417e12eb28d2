// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QThread;

namespace Platform {
namespace ThreadName {

// Before the thread is started: the name that debuggers and the system's tools show of it.
void set(QThread& thread, const QString& name);

} // namespace ThreadName
} // namespace Platform
