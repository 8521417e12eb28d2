// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/HardwareMgrInterface.h>

// Back ends say "no device" with an empty id, the façades with HardwareMgrInterface::NoneDevice.
namespace NoneDevice {

inline QString toFacade(const QString& backendId)
{
    return backendId.isEmpty() ? HardwareMgrInterface::NoneDevice : backendId;
}

inline QString toBackend(const QString& facadeId)
{
    return facadeId == HardwareMgrInterface::NoneDevice ? QString() : facadeId;
}

} // namespace NoneDevice
