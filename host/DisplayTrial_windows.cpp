// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DisplayTrial.h"

// There always is one.
DisplayTrial::DisplayTrial(int, char*[])
{
}

DisplayTrial::~DisplayTrial() = default;

QString DisplayTrial::problem() const
{
    return m_tried;
}
