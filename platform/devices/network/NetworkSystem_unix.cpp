// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/NetworkSystem.h"

void Platform::NetworkSystem::begin()
{
}

bool Platform::NetworkSystem::isUnknownName(int failure)
{
    return failure == EAI_NONAME || failure == EAI_NODATA;
}

QString Platform::NetworkSystem::textOf(int failure)
{
    return QString::fromLocal8Bit(::gai_strerror(failure));
}
