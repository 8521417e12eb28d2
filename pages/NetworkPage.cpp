// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/NetworkPage.h"

NetworkPage::NetworkPage(QWidget* parent) : CheckPage(parent)
{
}

NetworkPage::~NetworkPage() = default;
