// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/SoundServerState.h"

namespace Platform {

QString toString(SoundServerState state)
{
    switch (state) {
    case SoundServerState::Lost:
        return QStringLiteral("serverLost");
    case SoundServerState::Silent:
        return QStringLiteral("serverSilent");
    case SoundServerState::NotBuilt:
        return QStringLiteral("notBuilt");
    case SoundServerState::Starting:
    case SoundServerState::Running:
        break;
    }
    return {};
}

const char* textId(SoundServerState state)
{
    switch (state) {
    case SoundServerState::Lost:
        return "ID_Engine_SoundServerLost";
    case SoundServerState::Silent:
        return "ID_Engine_SoundServerSilent";
    case SoundServerState::NotBuilt:
        return "ID_Engine_SoundNotBuilt";
    case SoundServerState::Starting:
    case SoundServerState::Running:
        break;
    }
    return nullptr;
}

} // namespace Platform
