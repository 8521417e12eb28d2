// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"
#include "platform/backend/NetworkLimits.h"

#include <QJsonObject>

namespace Platform {

// Why the figures are not those of the way to a server.
enum class NetworkProblem {
    None,
    NoServer,   // none is configured: they are those of this machine alone
    NoSuchHost, // the server has no address, so nothing could be sent
    Refused,    // its machine answered that nobody listens there
    NoRoute,    // the system knows no way there
};

// What a probe measured within its time window.
struct NetworkFigures
{
    int lossPercent = 0;                      // of the requests whose deadline has passed
    int delayMs = NetworkLimits::NotMeasured; // median round trip
    int jitterMs = 0;                         // interarrival jitter, RFC 3550 section 6.4.1
    int sent = 0;
    int answered = 0;
    int delay5Ms = NetworkLimits::NotMeasured; // 5th and 95th percentile of the round trips
    int delay95Ms = NetworkLimits::NotMeasured;
    NetworkProblem problem = NetworkProblem::None;
};

// The word of a problem in the report, under the key "state".
CLASSROOMBACKEND_EXPORT QString wordOf(NetworkProblem problem);
// As they stand in the report.
CLASSROOMBACKEND_EXPORT QJsonObject toJson(const NetworkFigures& figures);

// Measures the way to the server from its construction to its destruction. Threads as for
// CameraBackend.
class NetworkProbe
{
public:
    class Listener
    {
    public:
        virtual void networkFiguresChanged() = 0; // first within a second, then once a second

    protected:
        ~Listener() = default;
    };

    virtual ~NetworkProbe() = default;
    virtual NetworkFigures figures() const = 0;
};

} // namespace Platform
