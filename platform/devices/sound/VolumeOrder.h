// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Platform {

// That a device be set to a volume and unmuted.
struct VolumeOrder
{
    QString id;
    int percent;
    quint64 number; // see SoundSide::settledOrder
};

} // namespace Platform
