// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class HardwareMgrInterface
{
public:
    static const QString NoneDevice;
};
