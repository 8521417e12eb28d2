// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windows/ComPointer.h"

#include <QString>

#include <windows.h>
// Must follow windows.h.
#include <mmdeviceapi.h>

namespace TestSupport {

// The system's own endpoints, also while StagedAudio stands before them. For threads with COM.
namespace SystemAudio {

// Wine finds out here which devices there are, and keeps that for the life of the process.
HRESULT createEnumerator(Platform::ComPointer<IMMDeviceEnumerator>& enumerator);
// The endpoint with this friendly name; null if there is none.
Platform::ComPointer<IMMDevice> find(IMMDeviceEnumerator& enumerator, EDataFlow flow,
                                     const QString& name);

} // namespace SystemAudio
} // namespace TestSupport
