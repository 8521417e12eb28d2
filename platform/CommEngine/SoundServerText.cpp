// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/SoundServerText.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"

#include <QCoreApplication>

QString SoundServerText::orElse(const char* noDeviceId)
{
    const char* id = Platform::textId(Platform::EngineRegistry::engine().soundServerState());
    return qtTrId(id ? id : noDeviceId);
}

bool SoundServerText::isOne(const QString& text)
{
    using State = Platform::SoundServerState;
    return text == qtTrId(Platform::textId(State::Lost)) ||
           text == qtTrId(Platform::textId(State::Silent)) ||
           text == qtTrId(Platform::textId(State::NotBuilt));
}
