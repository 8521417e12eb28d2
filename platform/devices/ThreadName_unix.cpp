// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/ThreadName.h"

#include <QThread>

// Qt tells the system.
void Platform::ThreadName::set(QThread& thread, const QString& name)
{
    thread.setObjectName(name);
}
