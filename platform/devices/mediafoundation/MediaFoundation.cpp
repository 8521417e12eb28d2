// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/mediafoundation/MediaFoundation.h"

namespace Platform {

namespace {

// Since Windows 8, and on Windows 7 with an update of 2011.
constexpr DWORD SystemFolderOnly = 0x00000800; // LOAD_LIBRARY_SEARCH_SYSTEM32

// The library stays loaded: threads of Media Foundation may outlive each use of it.
template <typename Function>
bool find(const wchar_t* library, const char* name, Function& function)
{
    const HMODULE module = LoadLibraryExW(library, nullptr, SystemFolderOnly);
    if (!module) {
        return false;
    }
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
    return function != nullptr;
}

} // namespace

std::optional<MediaFoundation> MediaFoundation::load(const wchar_t* sources)
{
    MediaFoundation result;
    const bool isComplete =
        find(L"mfplat.dll", "MFStartup", result.startUp) &&
        find(L"mfplat.dll", "MFShutdown", result.shutDown) &&
        find(L"mfplat.dll", "MFCreateAttributes", result.createAttributes) &&
        find(sources, "MFEnumDeviceSources", result.enumDeviceSources) &&
        find(L"mfreadwrite.dll", "MFCreateSourceReaderFromMediaSource", result.createSourceReader);
    return isComplete ? std::make_optional(result) : std::nullopt;
}

} // namespace Platform
