// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/SoundRecording.h"
#include "tests/support/SoundServer.h"

#include <QString>
#include <memory>
#include <vector>

namespace TestSupport {

// The devices of a whole run, virtual ones of real servers: the speaker "Test Speaker A", the
// microphone "Test Microphone A" and the camera "Test Camera", whose picture is DialogCameras::Red.
// What brings the camera stands in one source file for each system.
class RunDevices
{
public:
    RunDevices();
    ~RunDevices(); // ends the servers
    RunDevices(const RunDevices&) = delete;
    RunDevices& operator=(const RunDevices&) = delete;

    bool start() { return m_sound.start(); } // speakers and microphone
    bool plugCamera();
    void unplugSound();

    bool listen(); // to the speaker; true once it is recorded
    std::vector<float> heard() const { return m_ear->samples(); }
    // A voice speaks into the microphone. Returns what it says, nothing if it can't.
    std::vector<float> say(const QString& text);
    bool waitForVoice() { return m_voice->waitForEnd(); } // until it has ended

private:
    struct Cameras;

    SoundServer m_sound;
    std::unique_ptr<Cameras> m_cameras;
    std::unique_ptr<SoundRecording> m_ear;
    std::unique_ptr<SoundSource> m_voice;
};

} // namespace TestSupport
