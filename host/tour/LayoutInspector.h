// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QRect;
class QWidget;

// Looks for what a user can't read, see or reach. Each problem is one line that begins with its
// rule and a colon. GUI thread only.
class LayoutInspector
{
public:
    static constexpr int MaxPopupGap = 12; // pixels at a scale of 100 %

    // "cut off", "overlap", "faint" and "too large".
    static QStringList inspect(const QWidget* window);
    // "faint focus": gives the focus to each control in turn, and then back.
    static QStringList inspectFocus(QWidget* window);
    // "far": a popup too far from the control that it belongs to.
    static QStringList inspectPopup(const QRect& popup, const QRect& anchor, double scale);
};
