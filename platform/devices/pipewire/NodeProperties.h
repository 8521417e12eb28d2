// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct spa_dict;

namespace Platform {

// PipeWire's headers have no names for these properties.
constexpr char CapabilitiesKey[] = "device.capabilities";

constexpr char DeviceFileKey[] = "api.v4l2.path";

QString propertyOf(const spa_dict* properties, const char* key); // empty if there is none
// The device's bus path, otherwise its serial number. Both survive replugging.
QString placeOf(const spa_dict* properties);

} // namespace Platform
