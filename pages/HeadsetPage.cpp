// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/HeadsetPage.h"

HeadsetPage::HeadsetPage(QWidget* parent) : CheckPage(parent)
{
}

HeadsetPage::~HeadsetPage() = default;
