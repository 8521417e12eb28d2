// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/NodeProperties.h"

#include <pipewire/keys.h>
#include <spa/utils/dict.h>

namespace Platform {

QString propertyOf(const spa_dict* properties, const char* key)
{
    const char* const value = spa_dict_lookup(properties, key);
    return value ? QString::fromUtf8(value) : QString();
}

QString placeOf(const spa_dict* properties)
{
    const QString busPath = propertyOf(properties, PW_KEY_DEVICE_BUS_PATH);
    return busPath.isEmpty() ? propertyOf(properties, PW_KEY_DEVICE_SERIAL) : busPath;
}

} // namespace Platform
