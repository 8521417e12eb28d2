// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

// What stands in for the client in the load test: it has Qt and an engine, and no more than C to
// show for it. A DLL of its own, loaded all the time.
extern "C" {

// The application and the scripted engine; false where the texts are missing.
__declspec(dllexport) bool clientStart();
// Walks through the check that is opened next, up to OK. With a folder, each step's picture is
// saved in it: null for none. If it hurries, countdowns and sounds are shorter than for a person.
__declspec(dllexport) void clientWalkThrough(const wchar_t* pictureFolder, bool hurries);
// The code that the run reported; 0 where it reported none, or left something behind.
__declspec(dllexport) int clientOutcome();
__declspec(dllexport) void clientEnd();

using ClientStart = bool();
using ClientWalkThrough = void(const wchar_t* pictureFolder, bool hurries);
using ClientOutcome = int();
using ClientEnd = void();
}
