// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

// Looks for texts that a visitor can't read: cut off, on top of one another, or too faint where the
// colour is the client's frame's and not the check's own style. GUI thread only.
class LayoutInspector
{
public:
    // Contrast of text that the frame colours, WCAG 2.1 success criterion 1.4.3.
    static constexpr double MinContrast = 4.5;

    // One line per problem in the visible texts of the window.
    static QStringList inspect(const QWidget* window);
};
