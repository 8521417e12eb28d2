// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"

// A report with something in every field, foreign text as foreign as it gets.
Report sampleReport();
