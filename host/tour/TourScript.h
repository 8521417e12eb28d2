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

// One stop of the tour: what to do, what to wait for, and the name of the picture.
struct TourStop
{
    QString name; // also the file name of the picture; if empty, there is no picture
    std::function<void(const DialogView&)> act;
    std::function<bool(const DialogView&)> isReady;
    // What the balloon or the list belongs to that is open then; none by default.
    std::function<const QWidget*(const DialogView&)> anchor = {};
};

// The stops of a tour, in order. walk() goes through the steps as a user does, on any devices.
// walkWithStates() also shows everything that can go wrong, on the scripted devices of the all-well
// scenario.
namespace TourScript {

std::vector<TourStop> walk(Platform::ScriptedEngine* engine); // null: real devices
std::vector<TourStop> walkWithStates(Platform::ScriptedEngine& engine);

} // namespace TourScript
