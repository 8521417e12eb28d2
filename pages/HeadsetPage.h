// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/CheckPage.h"

class HeadsetPage : public CheckPage
{
    Q_OBJECT
    Q_DISABLE_COPY(HeadsetPage)

public:
    explicit HeadsetPage(QWidget* parent = nullptr);
    ~HeadsetPage() override;
};
