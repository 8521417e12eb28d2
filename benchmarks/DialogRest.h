// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/DialogStage.h"

// Measures the processor time and the memory of this process on each page while nobody does
// anything, beside a program with an empty dialog. Prints a table; false if the bound of a page on
// which nothing moves is missed.
bool measureRest(DialogStage::Application& application, int msOfPage);
