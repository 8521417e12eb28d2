// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QString>

namespace Platform {

// Whether the service that microphones and speakers belong to answers, or that of the cameras.
enum class SoundServerState {
    Starting, // it was asked just now
    Running,
    Lost,     // there is none
    Silent,   // it takes connections and doesn't answer
    NotBuilt, // the engine can't use the devices of this system
};

// The word in reports, such as "serverLost"; empty if it is Starting or Running.
CLASSROOMBACKEND_EXPORT QString toString(SoundServerState state);

// The id of the text in place of a list of devices; null if it is Starting or
// Running.
CLASSROOMBACKEND_EXPORT const char* textId(SoundServerState state);

} // namespace Platform
