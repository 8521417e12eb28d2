// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <kiss_fftr.h>
#include <memory>

namespace Platform {

struct FourierPlanDeleter
{
    void operator()(kiss_fftr_state* plan) const { kiss_fftr_free(plan); }
};
using FourierPlan = std::unique_ptr<kiss_fftr_state, FourierPlanDeleter>;

} // namespace Platform
