// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/TestProcess.h"

// A display without a screen. Programs that are started from now on use it.
class VirtualDisplay final
{
public:
    bool start(); // prints why not

private:
    TestSupport::TestProcess m_process;
};
