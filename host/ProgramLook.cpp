// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/ProgramLook.h"

#include <QApplication>
#include <QFont>
#include <QStyle>

namespace {

// Balloons are top-level windows: they take this size and no page's.
constexpr int FontPixelSize = 12;

// The places on the pages are measured for this style, and other ones cut texts off.
const QLatin1String Style("fusion");

} // namespace

void ProgramLook::use()
{
    // Themes of some desktops, such as qt5ct, set their font by a posted event.
    QCoreApplication::sendPostedEvents();
    QApplication::setStyle(Style);
    // The forms are white, and a child below a style sheet inherits no palette from the dialog.
    QApplication::setPalette(QApplication::style()->standardPalette());
    QFont font = QApplication::font();
    font.setPixelSize(FontPixelSize);
    QApplication::setFont(font);
}
