// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

namespace Platform {

// Wine shows more endpoints than PulseAudio has devices: two named "PulseAudio", which stand for
// the server's defaults, and the monitor of each speaker as a microphone. The former have the same
// ids in every Wine, and the latter stand in its registry. Windows has neither.
class WinePulseDevices
{
public:
    // The endpoints that nobody can speak into or hear from by themselves.
    static WinePulseDevices standIns();

    bool contain(const QString& endpointId) const;

private:
    QSet<QString> m_guids; // the last part of their ids
};

} // namespace Platform
