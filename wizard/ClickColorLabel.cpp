// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "wizard/ClickColorLabel.h"

namespace {

constexpr QRgb PassedColor = 0x009265;
constexpr QRgb FailedColor = 0xFF4A27;

} // namespace

ClickColorLabel::ClickColorLabel(QWidget* parent) : QLabel(parent)
{
}

ClickColorLabel::~ClickColorLabel() = default;

void ClickColorLabel::setResultColor(bool passed)
{
    m_resultShown = true;
    QPalette palette;
    palette.setColor(QPalette::WindowText, QColor(passed ? PassedColor : FailedColor));
    setPalette(palette);
}

void ClickColorLabel::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    Q_EMIT clicked();
}
