// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

#include <QStringList>

namespace TestSupport {

inline QStringList idsOf(const Platform::DeviceList& devices)
{
    QStringList result;
    for (const Platform::DeviceInfo& device : devices) {
        result << device.id;
    }
    return result;
}

inline QStringList namesOf(const Platform::DeviceList& devices)
{
    QStringList result;
    for (const Platform::DeviceInfo& device : devices) {
        result << device.name;
    }
    return result;
}

} // namespace TestSupport
