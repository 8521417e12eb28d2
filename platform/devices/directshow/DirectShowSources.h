// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windows/ComPointer.h"

#include <QString>
#include <vector>

#include <windows.h>
// Must follow windows.h.
#include <strmif.h>

namespace Platform {

// A camera in DirectShow's list: a filter that some program has registered, or a device.
struct DirectShowSource
{
    QString entry; // names it in the list; in lower case, never empty
    QString path;  // the device's symbolic link, in lower case; programs have none
    QString name;  // for people; may be empty
};

namespace DirectShowSources {

// Those without a name for the list are left out. Takes any time.
HRESULT list(std::vector<DirectShowSource>& sources);
// Makes the filter, which loads a foreign library. Null, with the error, if it can't be made.
ComPointer<IBaseFilter> open(const QString& entry, HRESULT& error);

} // namespace DirectShowSources
} // namespace Platform
