// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/SoundRecording.h"
#include "tests/support/SoundServer.h"

#include <vector>

namespace TestSupport {

// A microphone and a speaker on one clock, so that the delay from the one to the other is known to
// the sample: "room_voice" is what is spoken into the microphone "room_microphone", and
// "room_speaker" is what the speaker plays.
class ListeningRoom
{
public:
    static constexpr double BurstSpacingSeconds = 0.2;

    explicit ListeningRoom(SoundServer& server);

    bool isBuilt() const { return m_isBuilt; }
    // Speaks so many short bursts and gives how many milliseconds later each came out of the
    // speaker; a negative number for one that didn't.
    std::vector<double> measureDelays(int bursts);

private:
    bool m_isBuilt;
};

} // namespace TestSupport
