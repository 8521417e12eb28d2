// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/SoundServerText.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"

#include <QCoreApplication>

namespace {

constexpr char LostId[] = "ID_Engine_SoundServerLost";
constexpr char SilentId[] = "ID_Engine_SoundServerSilent";

} // namespace

QString SoundServerText::orElse(const char* noDeviceId)
{
    using State = Platform::SoundServerState;
    switch (Platform::EngineRegistry::engine().soundServerState()) {
    case State::Lost:
        return qtTrId(LostId);
    case State::Silent:
        return qtTrId(SilentId);
    case State::Starting:
    case State::Running:
        break;
    }
    return qtTrId(noDeviceId);
}

bool SoundServerText::isOne(const QString& text)
{
    return text == qtTrId(LostId) || text == qtTrId(SilentId);
}
