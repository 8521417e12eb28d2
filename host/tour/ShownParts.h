// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>
#include <vector>

class QWidget;

// A text or a control that a window shows.
struct ShownPart
{
    const QWidget* widget;
    QString text;          // empty if the part is no text
    QSize needed;          // to paint it
    QRect room;            // where it may be painted, in coordinates of the window
    QRect painted;         // where it is, if its room is large enough
    bool mayBeCut = false; // a user's own words, such as the name of a device

    // For a message: object name and text.
    QString name() const;

    static std::vector<ShownPart> of(const QWidget& window);
};
