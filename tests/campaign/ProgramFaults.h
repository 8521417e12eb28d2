// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

class Injection;

// Faults of the system under the program as it was built. Each call makes a few checks at once.
namespace ProgramFaults {

void open(Injection& injection); // calls for the program's own files
void openAny(Injection& injection);
void read(Injection& injection);
void write(Injection& injection);
void sync(Injection& injection);
void rename(Injection& injection);
void memory(Injection& injection);
void thread(Injection& injection);
void descriptor(Injection& injection);

void slowDisk(Injection& injection);
void fullDisk(Injection& injection);
void fullTemporaryFolder(Injection& injection);
void pipes(Injection& injection);
void earlySignal(Injection& injection);
void killWhileWriting(Injection& injection);
void clockJump(Injection& injection);
void suspend(Injection& injection);
void sharedStore(Injection& injection);

} // namespace ProgramFaults
