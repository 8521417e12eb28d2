// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/Engine.h"

namespace Platform {

Engine::~Engine() = default;

SoundServerState Engine::soundServerState() const
{
    return SoundServerState::Running;
}

bool Engine::hasOwnChoices() const
{
    return false;
}

void Engine::deliver(std::chrono::milliseconds /*limit*/)
{
}

} // namespace Platform
