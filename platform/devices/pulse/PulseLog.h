// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/SoundDevices.h"

#include <QByteArray>
#include <pulse/introspect.h>
#include <pulse/stream.h>

namespace Platform {

// For whoever looks for the cause of a fault. Sound thread only.
namespace PulseLog {

void formatOf(pa_stream& stream, SoundKind kind); // that is ready
// Unless it is the one of last time.
void server(const pa_server_info& info, QByteArray& lastTime);

} // namespace PulseLog
} // namespace Platform
