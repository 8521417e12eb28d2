// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QString>
#include <memory>
#include <optional>

namespace Platform {

// What came of a sweep.
struct LoopOutcome
{
    enum class Result {
        Heard,
        NotHeard,
        NotTried, // it couldn't be played and recorded to its end
    };

    Result result = Result::NotTried;
    double delayMs = 0; // if heard: from the program through speaker and microphone back to it
    double levelDb = 0; // if heard: the peak of the sweep as it came back; 0 dB is full scale
    QString reason;     // if not tried: a word of docs/report-format.md, such as "hung"
};

// One quiet sweep on a speaker, looked for in what a microphone hears. It begins with the
// construction; the destructor ends it and closes both devices. Volume and mute stay as they are.
// GUI thread only, and no call waits.
class CLASSROOMBACKEND_EXPORT AcousticLoop
{
public:
    virtual ~AcousticLoop();

    virtual std::optional<LoopOutcome> outcome() const = 0; // nothing while it runs
};

// An engine that can make such loops also derives from this. Others needn't.
class CLASSROOMBACKEND_EXPORT AcousticLoopMaker
{
public:
    // Null if it can't on this system.
    virtual std::unique_ptr<AcousticLoop> createAcousticLoop(const QString& speakerId,
                                                             const QString& microphoneId) = 0;

protected:
    virtual ~AcousticLoopMaker();
};

} // namespace Platform
