// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/DialogStage.h"

// Measures how soon the dialog is painted, beside a QWizard of as many widgets of the same kinds.
// Prints a table; false if the bound is missed.
bool measureOpening(DialogStage::Application& application, int rounds);
