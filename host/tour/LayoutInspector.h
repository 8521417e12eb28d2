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
    // One line per problem in the visible texts of the window.
    static QStringList inspect(const QWidget* window);
};
