// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/tour/DialogView.h"

#include <QString>
#include <functional>
#include <vector>

namespace Platform {
class ScriptedEngine;
}

// One stop of the tour: what to do first, what to wait for, and the name of the picture then taken.
struct TourStop
{
    QString name; // also the picture's file name; empty: no picture is taken
    std::function<void(const DialogView&)> act;
    std::function<bool(const DialogView&)> isReady;
    bool isQuestion = false; // the picture is of a question above the dialog
};

// The stops of a tour, in order. The walk goes through the steps as a visitor does, on any devices.
// With states, it also takes the scripted devices of the all-well scenario through all that can go
// wrong.
namespace TourScript {

std::vector<TourStop> walk(Platform::ScriptedEngine* engine); // null: real devices
std::vector<TourStop> walkWithStates(Platform::ScriptedEngine& engine);

} // namespace TourScript
