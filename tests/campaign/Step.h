// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

// The steps of the dialog, in their order.
enum class Step { Network, Camera, Speaker, Microphone, Result };

constexpr Step AllSteps[] = {Step::Network, Step::Camera, Step::Speaker, Step::Microphone,
                             Step::Result};
