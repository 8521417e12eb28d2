// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

namespace TestSupport {

// The devices of a whole run, virtual ones of real servers: the speaker "Test Speaker A", the
// microphone "Test Microphone A" and the camera "Test Camera", whose picture is DialogCameras::Red.
class RunDevices
{
public:
    RunDevices();
    ~RunDevices(); // ends the servers
    RunDevices(const RunDevices&) = delete;
    RunDevices& operator=(const RunDevices&) = delete;

    bool start(); // speakers and microphone
    bool plugCamera();
#ifndef Q_OS_WIN
    void unplugSound();
#endif

    bool listen(); // to the speaker; true once it is recorded
    std::vector<float> heard() const;
    // A voice speaks into the microphone. Returns what it says, nothing if it can't.
    std::vector<float> say(const QString& text);
    bool waitForVoice(); // until it has ended

    static std::vector<float> soundFile(const QString& path);
    // Runs a measurement in real time, which returns what is wrong or an empty text; again if the
    // machine may have been too busy for it.
    static QString measuredFault(const std::function<QString()>& measure);

private:
    struct Parts;

    std::unique_ptr<Parts> m_parts;
};

} // namespace TestSupport
