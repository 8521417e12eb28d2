// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Platform {

// The numbers in which the dialog tells its results.

// What the user said of a device.
enum class AnswerCode : int { None = 0, Yes = 1, No = 2 };

// What the dialog saw of a device; for the speaker, whether the right sound was picked.
enum class StateCode : int { Unknown = 0, Works = 1, Fails = 2 };

// How the dialog was left, as it is posted by the device manager.
enum class ReportCode : int { AllAnswered = 3, LeftEarly = 7 };

} // namespace Platform
