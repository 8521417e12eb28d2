// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "wizard/ClickColorLabel.h"

#include <QKeyEvent>

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

void ClickColorLabel::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Select:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat()) {
            Q_EMIT clicked();
        }
        break;
    default:
        QLabel::keyPressEvent(event);
    }
}
