// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/CameraPage.h"

CameraPage::CameraPage(QWidget* parent) : CheckPage(parent)
{
}

CameraPage::~CameraPage() = default;
