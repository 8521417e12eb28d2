// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/CommEngineExport.h>
#include <QString>

class COMMENGINE_EXPORT HardwareMgrInterface
{
public:
    static const QString NoneDevice; // the id of the entry that stands for no device
};
