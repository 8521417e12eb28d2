// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/DialogStage.h"

// Measures how soon the dialog is closed while its streams are open. Prints a table; false if the
// bound is missed.
bool measureClosing(DialogStage::Application& application, TestSupport::SoundServer& server,
                    int rounds);
