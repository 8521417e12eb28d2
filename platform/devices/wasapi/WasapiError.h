// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

#include <QString>

#include <windows.h>

namespace Platform {

// What an error of Windows' audio functions means to the user. The words of the system are never
// asked, since they depend on its language.
namespace WasapiError {

// Why a device can't be used: Absent, Busy (another program has it for itself), Denied, Hung, or
// Failed. Failed is also the answer to what isn't known.
DeviceState stateOf(HRESULT error);

// What the user of a stream is told: Denied, Busy or Failed. Whether a device is absent is known
// from the list of devices.
DeviceState failureOf(HRESULT error);

// Windows' audio service itself is gone, so no device can be used.
bool isServiceLost(HRESULT error);

// For logs: the name in Windows' headers if it is known, and the number.
QString toString(HRESULT error);

} // namespace WasapiError
} // namespace Platform
