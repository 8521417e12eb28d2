// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QUrl>
#include <optional>

namespace Platform {

// The http or https address that the text names; nothing if it is none.
CLASSROOMBACKEND_EXPORT std::optional<QUrl> webAddress(const QString& text);

} // namespace Platform
