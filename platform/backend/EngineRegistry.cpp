// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/EngineRegistry.h"

#include "platform/backend/Engine.h"

#include <QtGlobal>

namespace Platform {

namespace {

struct Slot
{
    std::unique_ptr<Engine> engine;
    int generation = 0;
};

Slot& slot()
{
    static Slot theSlot;
    return theSlot;
}

} // namespace

void EngineRegistry::install(std::unique_ptr<Engine> engine)
{
    slot().engine = std::move(engine);
    ++slot().generation;
}

void EngineRegistry::uninstall()
{
    slot().engine.reset();
}

Engine& EngineRegistry::engine()
{
    if (!slot().engine) {
        qFatal("No engine is installed: call Platform::EngineRegistry::install() first");
    }
    return *slot().engine;
}

int EngineRegistry::generation()
{
    return slot().generation;
}

} // namespace Platform
