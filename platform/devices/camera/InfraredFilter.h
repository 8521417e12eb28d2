// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Platform {

struct CameraNode;

namespace InfraredFilter {

// An infrared or depth sensor offers only gray formats, or its name says so. Laptops have one
// beside the camera, for signing in by face.
bool isInfrared(const CameraNode& node);

} // namespace InfraredFilter
} // namespace Platform
