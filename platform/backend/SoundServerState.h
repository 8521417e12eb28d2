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
    Lost,   // there is none
    Silent, // it takes connections and doesn't answer
};

// The word in reports, such as "serverLost"; empty unless Lost or Silent.
CLASSROOMBACKEND_EXPORT QString toString(SoundServerState state);

// The id of the text in place of a list of devices; null unless Lost or Silent.
CLASSROOMBACKEND_EXPORT const char* textId(SoundServerState state);

} // namespace Platform
