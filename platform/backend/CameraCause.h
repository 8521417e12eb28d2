// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QString>
#include <chrono>

namespace Platform {

// Why a started camera shows no picture that is worth looking at.
struct CameraCause
{
    enum class Kind {
        None,       // there is a picture, or nobody asked for one
        Starting,   // it was opened just now
        Absent,     // there is no camera at all
        Busy,       // another program uses it
        Denied,     // the system refuses it
        Hung,       // it was opened and doesn't answer
        Stalled,    // it runs and sends no frames
        Black,      // for BlackTime, so it is covered or in the dark
        Unplugged,  // it was there before
        ServerLost, // the service that brings the pictures doesn't run
        Failed,     // it broke
        Unreadable, // it works, but sends no format that can be shown
        NotBuilt,   // the engine can't use the cameras of this system
    };

    static constexpr std::chrono::seconds BlackTime{2};
    // How long a camera may take to start before it counts as hung or stalled. Longer than
    // CameraOpening::StartTimeout, which knows more.
    static constexpr std::chrono::seconds StartTime{4};

    Kind kind = Kind::None;
    QString program; // that uses a busy camera, if the system tells; foreign text

    friend bool operator==(const CameraCause& a, const CameraCause& b)
    {
        return a.kind == b.kind && a.program == b.program;
    }
    friend bool operator!=(const CameraCause& a, const CameraCause& b) { return !(a == b); }
};

// The word in reports, such as "serverLost"; empty for None.
CLASSROOMBACKEND_EXPORT QString toString(CameraCause::Kind kind);

} // namespace Platform
