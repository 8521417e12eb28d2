// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/tour/DialogView.h"

#include <QImage>
#include <QRect>

// The places of the dialog and of the balloon or list above it; empty for what isn't shown.
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
