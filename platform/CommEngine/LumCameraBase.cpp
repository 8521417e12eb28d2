// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <CommEngine/LumCameraBase.h>

LumCameraBase::LumCameraBase(QObject* parent) : QObject(parent)
{
}

LumCameraBase::~LumCameraBase() = default;
