// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TestSupport {

// The id of the speaker or microphone whose name Windows shows so; empty if there is none.
QString speakerCalled(const QString& name);
QString microphoneCalled(const QString& name);

} // namespace TestSupport
