// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct spa_dict;

namespace Platform {

// PipeWire's headers have no name for this property.
constexpr char CapabilitiesKey[] = "device.capabilities";

QString propertyOf(const spa_dict* properties, const char* key); // empty if there is none
// The device's bus path, otherwise its serial number. Both survive replugging.
QString placeOf(const spa_dict* properties);

} // namespace Platform
