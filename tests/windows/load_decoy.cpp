// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
// Loads a DLL by its bare name, as libraries do, and returns 0 when there was one.
// Usage: load_decoy NAME [--safely], which first does what the program does at its start.
#include "host/System.h"

#include <QString>
#include <windows.h>

int main(int argc, char* argv[])
{
    if (argc < 2) {
        return 64;
    }
    if (argc > 2 && qstrcmp(argv[2], "--safely") == 0) {
        System::prepareProcess();
    }
    return LoadLibraryA(argv[1]) ? 0 : 1;
}
