// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/MicrophoneBackend.h"
#include "platform/backend/PlayerBackend.h"
#include "platform/backend/SpeakerBackend.h"

namespace TestSupport {

// For those who only want to hear the sound.
class NoListener : public Platform::MicrophoneBackend::Listener,
                   public Platform::SpeakerBackend::Listener,
                   public Platform::PlayerBackend::Listener
{
public:
    void microphoneListChanged() override {}
    void currentMicrophoneChanged(const QString&) override {}
    void levelMeasured(double) override {}
    void microphoneVolumeChanged(int) override {}
    void microphoneInfoChanged() override {}
    void microphoneWorkStateChanged(const QString&, bool) override {}
    void systemVolumeChanged(float) override {}
    void speakerListChanged() override {}
    void currentSpeakerChanged(const QString&) override {}
    void speakerVolumeChanged(int) override {}
    void speakerWorkStateChanged(bool) override {}
    void playbackFinished() override {}
};

} // namespace TestSupport
