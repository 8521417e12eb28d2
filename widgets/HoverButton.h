// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/LumToolTip.h"

#include <QPushButton>

// An outlined button with a balloon above it while the pointer is over it. GUI thread only.
class HoverButton : public QPushButton
{
    Q_OBJECT
    Q_DISABLE_COPY(HoverButton)

public:
    HoverButton(const QString& text, const QString& tipText, QWidget* parent);
    ~HoverButton() override;

    void setTipEnabled(bool enabled);

protected:
    bool event(QEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    LumToolTip m_tip; // a child of the button's parent
    bool m_tipEnabled = false;
};
