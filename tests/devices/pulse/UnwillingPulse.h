// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

// Stands between this program and libpulse: makes one of its next calls fail. Linked into the test,
// so that it goes before the library.
namespace TestSupport::UnwillingPulse {

enum class Fault {
    NoContext,   // there is none
    NoOperation, // a query can't be sent
    BadReply,    // the server's reply is an error
    NoReply,     // the server doesn't reply
};

// The next calls that may have this fault succeed, and then one has it.
void arm(Fault fault, int callsBefore);
bool hasStruck();

// Streams that ask for this device get another one, as on PipeWire, if a device has just gone.
void redirectPlayback(const char* from, const char* to);

} // namespace TestSupport::UnwillingPulse
