// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

class QLabel;

// A tool button with a label whose colour tells whether it is checked. GUI thread only.
class TabButton : public QToolButton
{
    Q_OBJECT
    Q_DISABLE_COPY(TabButton)

public:
    explicit TabButton(QWidget* parent);
    ~TabButton() override;

    void setText(const QString& text); // the label's; the tool button's own stays empty

private:
    void onToggled(bool checked);

    QLabel* m_label;
};
