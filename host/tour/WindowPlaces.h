// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/tour/DialogView.h"

#include <QImage>
#include <QRect>

// Where the dialog is and the balloon or list above it. Empty if it isn't there.
struct WindowPlaces
{
    QRect dialog;
    QRect popup;
    double scale = 1; // pixels of these places for a pixel at 100 %

    static WindowPlaces asToldByQt(const DialogView& view);
    static WindowPlaces onScreen(const DialogView& view, const QImage& screen);

    QRect of(const QWidget& inDialog) const;
    // The part of the picture with the dialog and what is above it; all of it without the dialog.
    QImage cutOut(const QImage& screen) const;
};
