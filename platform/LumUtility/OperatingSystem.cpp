// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumUtility/OperatingSystem.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"

QString OperatingSystem::getName(const QString& separator) const
{
    return Platform::EngineRegistry::engine().systemFacts().operatingSystem().join(separator);
}
