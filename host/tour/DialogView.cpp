// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/DialogView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPainter>

bool DialogView::isEnabled(const char* buttonName) const
{
    const auto* button = find<QAbstractButton>(buttonName);
    return button && button->isEnabled();
}

void DialogView::click(const char* buttonName) const
{
    if (auto* button = find<QAbstractButton>(buttonName)) {
        QMetaObject::invokeMethod(button, &QAbstractButton::click, Qt::QueuedConnection);
    }
}

QWidgetList DialogView::windows() const
{
    QWidgetList result{m_dialog};
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* window : all) {
        if (window->isVisible() && window != m_dialog) {
            result << window;
        }
    }
    return result;
}

QPixmap DialogView::picture() const
{
    QRect area;
    for (const QWidget* window : windows()) {
        area |= window->geometry();
    }
    const qreal ratio = m_dialog->devicePixelRatioF();
    QPixmap canvas(area.size() * ratio);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    for (QWidget* window : windows()) {
        painter.drawPixmap(window->geometry().topLeft() - area.topLeft(), window->grab());
    }
    return canvas;
}
