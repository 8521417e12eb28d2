// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/qglobal.h>

#ifdef ENVCHECK_BUILDING
#define ENVCHECK_EXPORT Q_DECL_EXPORT
#else
#define ENVCHECK_EXPORT Q_DECL_IMPORT
#endif
