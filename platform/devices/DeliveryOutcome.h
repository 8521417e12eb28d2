// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Platform {

// What became of the reports for a server. All is well if nothing is set.
struct DeliveryOutcome
{
    bool isUnderWay = false;   // a post hasn't come to its end within the limit
    bool isTurnedAway = false; // the server wants another token, and nothing more is posted
    int waiting = 0;           // reports that the server hasn't taken; the outbox keeps them
    int refused = 0;           // reports that it will never take; they are dropped
    int status = 0;            // of HTTP, for the last failure; 0: no answer came
    QString reason;            // why no answer came, in Qt's words; empty: it took too long
};

} // namespace Platform
