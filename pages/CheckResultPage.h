// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/CheckPage.h"

class CheckResultPage : public CheckPage
{
    Q_OBJECT
    Q_DISABLE_COPY(CheckResultPage)

public:
    explicit CheckResultPage(QWidget* parent = nullptr);
    ~CheckResultPage() override;

    void setPages(CheckPage* system, CheckPage* camera, CheckPage* headphone,
                  CheckPage* microphone);
    bool isRedetect() const { return false; }
};
