// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

// A ring around the control of a window that has the keyboard's focus. Style sheets take away what
// a style would show, and a slider never shows enough. It is dark between two white lines, so that
// it stands out from any ground. A click hides it, a key shows it again. GUI thread only.
class FocusRing : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(FocusRing)

public:
    explicit FocusRing(QWidget* window);
    ~FocusRing() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void follow(QWidget* control);
    void place();
    bool moves(QObject* watched) const; // with this object the control moves, appears or disappears

    QPointer<QWidget> m_control;
    bool m_isByKeyboard = true;
};
