// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>

// The names in a ResultDocument.
namespace Platform::ResultKeys {

// Its sections.
inline const QLatin1String Results("results");
inline const QLatin1String Measurements("measurements");
inline const QLatin1String Later("later");
inline const QLatin1String Codes("codes");

// The checks in a section.
inline const QLatin1String Network("network");
inline const QLatin1String Camera("camera");
inline const QLatin1String Speaker("speaker");
inline const QLatin1String Microphone("microphone");
inline const QLatin1String Loop("loop"); // from the speaker to the microphone

// The results of a device: an AnswerCode, a StateCode, a name.
inline const QLatin1String UserState("userState");
inline const QLatin1String DeviceState("deviceState");
inline const QLatin1String Device("device");

// The results of the network: the texts that were shown.
inline const QLatin1String Delay("delay");
inline const QLatin1String Loss("loss");

// Among the measurements of a check: a word for what state the device or the network was in, and
// why there was no good picture or sound (of a camera: the word of a CameraCause).
inline const QLatin1String State("state");
inline const QLatin1String Cause("cause");

} // namespace Platform::ResultKeys
