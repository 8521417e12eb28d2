// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/MicrophonePage.h"

MicrophonePage::MicrophonePage(QWidget* parent) : CheckPage(parent)
{
}

MicrophonePage::~MicrophonePage() = default;
