// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/CheckResultPage.h"

CheckResultPage::CheckResultPage(QWidget* parent) : CheckPage(parent)
{
}

CheckResultPage::~CheckResultPage() = default;

void CheckResultPage::setPages(CheckPage* /*system*/, CheckPage* /*camera*/,
                               CheckPage* /*headphone*/, CheckPage* /*microphone*/)
{
}
