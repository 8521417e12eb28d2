// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// A label that can be clicked, and that can show a verdict by its colour. GUI thread only.
class ClickColorLabel : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY(ClickColorLabel)

public:
    explicit ClickColorLabel(QWidget* parent);
    ~ClickColorLabel() override;

    void setResultColor(bool passed); // green or red

Q_SIGNALS:
    void clicked(); // at every release, whatever the button and the place

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override; // as a button, if it may have the focus

private:
    bool m_resultShown = false;
};
