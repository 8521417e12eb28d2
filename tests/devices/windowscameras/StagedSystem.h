// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>

namespace TestSupport {

// Which of Windows' two systems lists a staged camera.
enum class StagedSystem { MediaFoundation, DirectShow };

} // namespace TestSupport

Q_DECLARE_METATYPE(TestSupport::StagedSystem)
