// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class SystemTestingResult
{
public:
    static void writeCameraStateFromUser(int answer);
    static void writeCameraState(int state);
    static void writeCurrentCamera(const QString& name);
    static void writeHeadphoneStateFromUser(int answer);
    static void writeHeadphoneState(int state);
    static void writeCurrentHeadphone(const QString& name);
    static void writeMicrophoneStateFromUser(int answer);
    static void writeMicrophoneState(int state);
    static void writeCurrentMicrophone(const QString& name);
    static void writeNetworkDelay(const QString& text);
    static void writeFrameLossRate(const QString& text);
};
