// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/LumWidgets/LightPalette.h"

namespace {

const QColor TextColor(0x23, 0x23, 0x23);
const QColor FaintColor(0x76, 0x76, 0x76); // 4.5:1 on white
const QColor GroundColor(0xFF, 0xFF, 0xFF);
const QColor RaisedColor(0xF0, 0xF0, 0xF0);
const QColor ChosenColor(0x00, 0x83, 0x5A);
const QColor LinkColor(0x00, 0x5F, 0xB8);

} // namespace

QPalette lightPalette()
{
    // The constructor derives the shades of edges, and fills every group.
    QPalette palette(RaisedColor, GroundColor);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, TextColor);
        palette.setColor(QPalette::Disabled, role, FaintColor);
    }
    palette.setColor(QPalette::PlaceholderText, FaintColor);
    palette.setColor(QPalette::Base, GroundColor);
    palette.setColor(QPalette::AlternateBase, RaisedColor);
    palette.setColor(QPalette::ToolTipBase, GroundColor);
    palette.setColor(QPalette::Highlight, ChosenColor);
    palette.setColor(QPalette::HighlightedText, GroundColor);
    palette.setColor(QPalette::Link, LinkColor);
    palette.setColor(QPalette::LinkVisited, LinkColor);
    return palette;
}
