// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace TestSupport {

// What rtkit does for sound servers on a desktop: all threads of a process, and those that they
// start, come before ordinary ones. Without the right to it, nothing changes.
void giveRealTimePriority(qint64 processId);

// The same for the calling thread, which stands for a device.
void giveThisThreadRealTimePriority();

} // namespace TestSupport
