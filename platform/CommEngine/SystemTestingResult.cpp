// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/SystemTestingResult.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"

namespace {

void record(const char* key, const QJsonValue& value)
{
    Platform::EngineRegistry::engine().reportSink().recordResult(QLatin1String(key), value);
}

} // namespace

void SystemTestingResult::writeCameraStateFromUser(int answer)
{
    record("camera.userState", answer);
}

void SystemTestingResult::writeCameraState(int state)
{
    record("camera.deviceState", state);
}

void SystemTestingResult::writeCurrentCamera(const QString& name)
{
    record("camera.device", name);
}

void SystemTestingResult::writeHeadphoneStateFromUser(int answer)
{
    record("speaker.userState", answer);
}

void SystemTestingResult::writeHeadphoneState(int state)
{
    record("speaker.deviceState", state);
}

void SystemTestingResult::writeCurrentHeadphone(const QString& name)
{
    record("speaker.device", name);
}

void SystemTestingResult::writeMicrophoneStateFromUser(int answer)
{
    record("microphone.userState", answer);
}

void SystemTestingResult::writeMicrophoneState(int state)
{
    record("microphone.deviceState", state);
}

void SystemTestingResult::writeCurrentMicrophone(const QString& name)
{
    record("microphone.device", name);
}

void SystemTestingResult::writeNetworkDelay(const QString& text)
{
    record("network.delay", text);
}

void SystemTestingResult::writeFrameLossRate(const QString& text)
{
    record("network.loss", text);
}
