// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include <windows.h>
// Must follow windows.h.
#include <mfapi.h>
#include <mfidl.h>
#include <mfreadwrite.h>

namespace Platform {

// The functions of Windows' Media Foundation. They are looked up at run time and in the folder of
// the system only: editions "N" of Windows lack them until somebody adds the media features.
struct MediaFoundation
{
    decltype(&MFStartup) startUp = nullptr;
    decltype(&MFShutdown) shutDown = nullptr;
    decltype(&MFCreateAttributes) createAttributes = nullptr;
    decltype(&MFEnumDeviceSources) enumDeviceSources = nullptr;
    decltype(&MFCreateSourceReaderFromMediaSource) createSourceReader = nullptr;

    // None if a library or a function is missing. The name is that of the library with the list of
    // cameras.
    static std::optional<MediaFoundation> load(const wchar_t* sources = L"mf.dll");
};

using MediaFoundationLoader = std::function<std::optional<MediaFoundation>()>;

} // namespace Platform
