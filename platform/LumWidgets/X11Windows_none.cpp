// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/LumWidgets/X11Windows.h"

bool X11Windows::areBlended()
{
    return true;
}

void X11Windows::refreshPlace(const QWindow&)
{
}
