// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

// Looks for texts that a user can't read: cut off, on top of one another, or with too little
// contrast. It checks the contrast only of texts whose colour the client's frame sets. GUI thread
// only.
class LayoutInspector
{
public:
    // Least contrast of such a text, WCAG 2.1 success criterion 1.4.3.
    static constexpr double MinContrast = 4.5;

    // One line per problem in the visible texts of the window.
    static QStringList inspect(const QWidget* window);
};
