// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/LumToolTip.h"

#include <QHBoxLayout>
#include <QPushButton>

// A row with a button like a link, which shows and hides a balloon of tips above itself. GUI thread
// only.
class TipsWidget : public QHBoxLayout
{
    Q_OBJECT
    Q_DISABLE_COPY(TipsWidget)

public:
    TipsWidget(const QString& buttonText, const QString& tipText, QWidget* parent);
    ~TipsWidget() override;

    QWidget* button(); // for the tab order

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void toggleTip();

    QPushButton m_button;
    LumToolTip m_tip;
};
