// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <LumWidgets/LumWidgetsExport.h>
#include <QMessageBox>

// The client's message boxes. GUI thread only; modal.
class LUMWIDGETS_EXPORT LumMessageBox
{
public:
    // The button that was pressed; NoButton where the box went away without one, as when its parent
    // was destroyed. The text is one of the client's own, so markup in it counts.
    static QMessageBox::StandardButton question(QWidget* parent, const QString& title,
                                                const QString& text,
                                                QMessageBox::StandardButtons buttons,
                                                QMessageBox::StandardButton defaultButton);
};
