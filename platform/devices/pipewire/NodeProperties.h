// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct spa_dict;

namespace Platform {

// What the server tells of a device but has no name of its own for.
constexpr char CapabilitiesKey[] = "device.capabilities";

QString propertyOf(const spa_dict* properties, const char* key); // empty where it isn't told
// Where the device is plugged in, otherwise its serial number: what outlives replugging.
QString placeOf(const spa_dict* properties);

} // namespace Platform
