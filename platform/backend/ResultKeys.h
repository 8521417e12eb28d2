// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>

// The names in a ResultDocument.
namespace Platform::ResultKeys {

// Its sections.
inline constexpr QLatin1String Results("results");
inline constexpr QLatin1String Measurements("measurements");
inline constexpr QLatin1String Later("later");
inline constexpr QLatin1String Codes("codes");

// The checks in a section.
inline constexpr QLatin1String Network("network");
inline constexpr QLatin1String Camera("camera");
inline constexpr QLatin1String Speaker("speaker");
inline constexpr QLatin1String Microphone("microphone");

// The results of a device: an AnswerCode, a StateCode, a name.
inline constexpr QLatin1String UserState("userState");
inline constexpr QLatin1String DeviceState("deviceState");
inline constexpr QLatin1String Device("device");

// The results of the network: the texts that were shown.
inline constexpr QLatin1String Delay("delay");
inline constexpr QLatin1String Loss("loss");

} // namespace Platform::ResultKeys
