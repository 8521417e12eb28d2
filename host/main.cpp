// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Program.h"
#include "host/System.h"

int main(int argc, char* argv[])
{
    System::prepareProcess();
    return static_cast<int>(Program::run(argc, argv));
}
