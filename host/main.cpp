// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Program.h"

int main(int argc, char* argv[])
{
    return static_cast<int>(Program::run(argc, argv));
}
