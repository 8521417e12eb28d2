// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <LumUtility/LumUtilityExport.h>
#include <QString>

class LUMUTILITY_EXPORT OperatingSystem
{
public:
    // Name, version and architecture, joined by the separator.
    QString getName(const QString& separator) const;
};
