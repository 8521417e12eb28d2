// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/SoundTest.h"
#include "tests/support/SoundRecording.h"

#include <QList>
#include <QStringList>
#include <memory>

namespace TestSupport {

// Remembers what a microphone of the engine tells.
class MicrophoneListener final : public Platform::MicrophoneBackend::Listener
{
public:
    void microphoneListChanged() override { ++lists; }
    void currentMicrophoneChanged(const QString& id) override { currents.append(id); }
    void levelMeasured(double level) override { levels.append(level); }
    void microphoneVolumeChanged(int percent) override { ownVolumes.append(percent); }
    void microphoneInfoChanged() override { ++infos; }
    void microphoneWorkStateChanged(const QString&, bool works) override
    {
        workStates.append(works);
    }
    void systemVolumeChanged(float percent) override { systemVolumes.append(percent); }

    bool isCurrent(const QString& id) const { return !currents.isEmpty() && currents.last() == id; }
    double level() const { return levels.isEmpty() ? -1.0 : levels.last(); }

    int lists = 0;
    QStringList currents;
    QList<double> levels;
    QList<int> ownVolumes;
    int infos = 0;
    QList<bool> workStates;
    QList<float> systemVolumes;
};

// Each test case begins with a new server and an unopened microphone on "microphone_a".
class MicrophoneTest : public SoundTest
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    double level() const { return m_listener->level(); }
    bool isLevelAt(double decibels) const;   // the last level
    bool areLevelsAt(double decibels) const; // all levels, and there is one
    // Listens to the microphone on this speaker.
    void listenOn(const char* speakerId);
    int captures();  // streams of the microphone check
    int playbacks(); // streams of listening to oneself and of SoundSource

    std::unique_ptr<MicrophoneListener> m_listener;
    std::unique_ptr<Platform::MicrophoneBackend> m_microphone;
    std::unique_ptr<Platform::SpeakerBackend> m_speaker;
};

} // namespace TestSupport
