// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/SoundRecording.h"
#include "tests/support/SoundServer.h"

#include <vector>

namespace TestSupport {

// A microphone and a speaker on one clock, so that the delay between them is measured to the
// sample. What is played on "room_voice" is recorded by the microphone "room_microphone".
// "room_speaker" is the speaker.
class ListeningRoom
{
public:
    static constexpr double BurstSpacingSeconds = 0.2;

    explicit ListeningRoom(SoundServer& server);

    bool isBuilt() const { return m_isBuilt; }
    // Plays short bursts to the microphone. Returns for each one after how many milliseconds the
    // speaker played it; a negative number if it didn't.
    std::vector<double> measureDelays(int bursts);

private:
    bool m_isBuilt;
};

} // namespace TestSupport
