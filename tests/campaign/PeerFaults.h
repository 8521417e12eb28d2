// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

class Injection;

// Servers on the network that lie, and libraries that come and go.
namespace PeerFaults {

void stun(Injection& injection);
void dns(Injection& injection);
void http(Injection& injection);
void tls(Injection& injection);
void silentDns(Injection& injection);
void unload(Injection& injection); // the library, 100 times

} // namespace PeerFaults
