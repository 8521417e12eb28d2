// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class OperatingSystem
{
public:
    QString getName(const QString& separator) const;
};
