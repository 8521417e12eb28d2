// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/Fault.h"

#include <QString>

// All faults of the campaign.
namespace FaultTable {

const std::vector<Fault>& all();
const Fault* find(const QString& name); // null if there is none

} // namespace FaultTable
