// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/CommEngineExport.h>
#include <QString>

// The result recorder. Answers: 0 not answered, 1 yes, 2 no. Device states: 1 works, 2 doesn't.
// GUI thread only; no call blocks.
class COMMENGINE_EXPORT SystemTestingResult
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
