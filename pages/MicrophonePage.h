// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/CheckPage.h"

class MicrophonePage : public CheckPage
{
    Q_OBJECT
    Q_DISABLE_COPY(MicrophonePage)

public:
    explicit MicrophonePage(QWidget* parent = nullptr);
    ~MicrophonePage() override;
};
