// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DisplayKind.h"

QStringList DisplayKind::displays()
{
    return {QStringLiteral("desktop")}; // there always is one
}

bool DisplayKind::choose()
{
    return true; // there is only one
}
