// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/HardwareMgrInterface.h>

const QString HardwareMgrInterface::NoneDevice = QStringLiteral("{no device}");
