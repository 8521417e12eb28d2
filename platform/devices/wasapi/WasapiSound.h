// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/ServerSound.h"

namespace Platform {

// The sound system of Windows.
class WasapiSound final : public ServerSound
{
public:
    using ServerSound::ServerSound;

private:
    std::shared_ptr<SoundService> createServer() const override;
};

} // namespace Platform
