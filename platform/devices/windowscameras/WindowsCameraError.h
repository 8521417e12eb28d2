// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

#include <QString>

#include <windows.h>

namespace Platform {

// What an error of Media Foundation, of DirectShow or of a camera's driver means to the user. What
// it has in common with sound is told by WasapiError.
namespace WindowsCameraError {

// Why a camera can't be used: Absent, Busy (another program has it), Denied (by the privacy
// settings), Hung, Unreadable, or Failed. Failed is also the answer to what isn't known.
DeviceState stateOf(HRESULT error);

// What the user of a stream is told. Whether a camera is absent is known from the list.
DeviceState failureOf(HRESULT error);

// For logs: the name in Windows' headers if it is known, and the number.
QString toString(HRESULT error);

} // namespace WindowsCameraError
} // namespace Platform
