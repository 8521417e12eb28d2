// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/mediafoundation/MediaFoundation.h"
#include "platform/devices/windows/ComPointer.h"

#include <QString>
#include <vector>

namespace Platform {

// A camera in Media Foundation's list.
struct MediaFoundationSource
{
    QString link; // Windows' symbolic link, in lower case; never empty
    QString name; // for people; may be empty
    ComPointer<IMFActivate> activate;
};

namespace MediaFoundationSources {

// Lists all cameras; those without a link are left out. Takes any time.
HRESULT list(const MediaFoundation& functions, std::vector<MediaFoundationSource>& sources);
// Null, with the error, if there is none.
ComPointer<IMFActivate> find(const MediaFoundation& functions, const QString& link, HRESULT& error);

} // namespace MediaFoundationSources
} // namespace Platform
