// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiSound.h"

#include "platform/devices/wasapi/WasapiServer.h"

namespace Platform {

std::shared_ptr<SoundService> WasapiSound::createServer() const
{
    return std::make_shared<WasapiServer>();
}

std::unique_ptr<SoundSystem> createSoundSystem(const DeviceEngineConfig& /*config*/,
                                               ReportSink& report)
{
    return std::make_unique<WasapiSound>(report);
}

} // namespace Platform
