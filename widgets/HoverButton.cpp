// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "widgets/HoverButton.h"

#include <QEvent>

namespace {

const QColor TipColor(48, 186, 120, 255);

const QLatin1String
    ButtonStyle("QPushButton{ border-radius: 3px; border: 1px solid rgb( 47, 186, 119 ); "
                "min-width: 168px; min-height: 30px; max-width: 138px; max-height: 30px; "
                "font-size: 14px; color: rgb( 47, 186, 119 );}"
                "QPushButton:hover{ background-color: #30ba78; color: white;} "
                "QPushButton:disabled{\tbackground-color: #A6ACBB; color: white; border: none;}");

} // namespace

HoverButton::HoverButton(const QString& text, const QString& tipText, QWidget* parent)
    : QPushButton(parent), m_tip(tipText, false, parent, Qt::AlignCenter, true, TipColor)
{
    setText(text);
    setStyleSheet(ButtonStyle);
    m_tip.hide();
}

HoverButton::~HoverButton() = default;

void HoverButton::setTipEnabled(bool enabled)
{
    m_tipEnabled = enabled;
}

bool HoverButton::event(QEvent* event)
{
    // A parent deletes its children in their order, and the balloon, being a member, must not be
    // reached before the button.
    if (event->type() == QEvent::ParentChange) {
        m_tip.setParent(parentWidget());
    } else if (event->type() == QEvent::ZOrderChange) {
        m_tip.raise();
    }
    return QPushButton::event(event);
}

void HoverButton::enterEvent(QEvent* event)
{
    QPushButton::enterEvent(event);
    if (!m_tipEnabled) {
        return;
    }
    m_tip.adjustSize();
    QRect balloon = m_tip.geometry();
    balloon.moveCenter({geometry().center().x(), geometry().top() - balloon.height() / 2});
    m_tip.setGeometry(balloon);
    m_tip.show();
}

void HoverButton::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    m_tip.hide();
}
