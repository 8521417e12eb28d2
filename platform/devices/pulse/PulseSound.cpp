// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseSound.h"

#include "platform/devices/pulse/PulseServer.h"

namespace Platform {

std::shared_ptr<SoundService> PulseSound::createServer() const
{
    return std::make_shared<PulseServer>();
}

std::unique_ptr<SoundSystem> createSoundSystem(const DeviceEngineConfig& /*config*/,
                                               ReportSink& report)
{
    return std::make_unique<PulseSound>(report);
}

} // namespace Platform
