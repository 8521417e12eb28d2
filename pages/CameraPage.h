// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/CheckPage.h"

class CameraPage : public CheckPage
{
    Q_OBJECT
    Q_DISABLE_COPY(CameraPage)

public:
    explicit CameraPage(QWidget* parent = nullptr);
    ~CameraPage() override;
};
