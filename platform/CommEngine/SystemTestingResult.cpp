// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/SystemTestingResult.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/ResultKeys.h"

namespace {

namespace ResultKeys = Platform::ResultKeys;

void record(QLatin1String check, QLatin1String key, const QJsonValue& value)
{
    Platform::EngineRegistry::engine().reportSink().recordResult(check + QLatin1Char('.') + key,
                                                                 value);
}

} // namespace

void SystemTestingResult::writeCameraStateFromUser(int answer)
{
    record(ResultKeys::Camera, ResultKeys::UserState, answer);
}

void SystemTestingResult::writeCameraState(int state)
{
    record(ResultKeys::Camera, ResultKeys::DeviceState, state);
}

void SystemTestingResult::writeCurrentCamera(const QString& name)
{
    record(ResultKeys::Camera, ResultKeys::Device, name);
}

void SystemTestingResult::writeHeadphoneStateFromUser(int answer)
{
    record(ResultKeys::Speaker, ResultKeys::UserState, answer);
}

void SystemTestingResult::writeHeadphoneState(int state)
{
    record(ResultKeys::Speaker, ResultKeys::DeviceState, state);
}

void SystemTestingResult::writeCurrentHeadphone(const QString& name)
{
    record(ResultKeys::Speaker, ResultKeys::Device, name);
}

void SystemTestingResult::writeMicrophoneStateFromUser(int answer)
{
    record(ResultKeys::Microphone, ResultKeys::UserState, answer);
}

void SystemTestingResult::writeMicrophoneState(int state)
{
    record(ResultKeys::Microphone, ResultKeys::DeviceState, state);
}

void SystemTestingResult::writeCurrentMicrophone(const QString& name)
{
    record(ResultKeys::Microphone, ResultKeys::Device, name);
}

void SystemTestingResult::writeNetworkDelay(const QString& text)
{
    record(ResultKeys::Network, ResultKeys::Delay, text);
}

void SystemTestingResult::writeFrameLossRate(const QString& text)
{
    record(ResultKeys::Network, ResultKeys::Loss, text);
}
