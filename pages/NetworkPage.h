// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/CheckPage.h"

class NetworkPage : public CheckPage
{
    Q_OBJECT
    Q_DISABLE_COPY(NetworkPage)

public:
    explicit NetworkPage(QWidget* parent = nullptr);
    ~NetworkPage() override;
};
