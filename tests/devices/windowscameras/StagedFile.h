// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

namespace TestSupport {

// Cameras for a program that nobody wrote for tests: a file that ENVCHECK_STAGED_CAMERAS names. It
// is read for every list, so cameras come and go with it:
//
//   [{ "link": "a", "name": "Camera", "modes": [{ "format": "YUY2", "size": [640, 480], "rate": 30
//   }],
//      "activationError": 2147942405, "isSilent": false, "isDirectShow": false }]
namespace StagedFile {

void stageIfNamed();

} // namespace StagedFile
} // namespace TestSupport
