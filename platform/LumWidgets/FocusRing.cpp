// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/LumWidgets/FocusRing.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

namespace {

constexpr int LineWidth = 2;
constexpr int WhiteWidth = 4; // 1 pixel on either side of the line
constexpr int CornerRadius = 5;
const QColor LineColor(0x23, 0x23, 0x23);

} // namespace

FocusRing::FocusRing(QWidget* window) : QWidget(window)
{
    setObjectName(QStringLiteral("focusRing"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*old*/, QWidget* now) { follow(now); });
}

FocusRing::~FocusRing() = default;

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
        m_isByKeyboard = event->type() == QEvent::KeyPress;
        place();
        break;
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
        if (moves(watched)) {
            place();
        }
        break;
    default:
        break;
    }
    return false;
}

void FocusRing::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr int Middle = WhiteWidth / 2;
    const QRect line = rect().adjusted(Middle, Middle, -Middle, -Middle);
    painter.setPen(QPen(Qt::white, WhiteWidth));
    painter.drawRoundedRect(line, CornerRadius, CornerRadius);
    painter.setPen(QPen(LineColor, LineWidth));
    painter.drawRoundedRect(line, CornerRadius, CornerRadius);
}

void FocusRing::follow(QWidget* control)
{
    m_control = control && parentWidget()->isAncestorOf(control) ? control : nullptr;
    place();
}

void FocusRing::place()
{
    const bool isShown = m_isByKeyboard && m_control && m_control->isVisible();
    if (isShown) {
        const QPoint corner = m_control->mapTo(parentWidget(), QPoint());
        setGeometry(QRect(corner, m_control->size())
                        .adjusted(-WhiteWidth, -WhiteWidth, WhiteWidth, WhiteWidth));
        raise();
    }
    setVisible(isShown);
}

bool FocusRing::moves(QObject* watched) const
{
    if (!m_control || !watched->isWidgetType()) {
        return false;
    }
    const auto* widget = static_cast<const QWidget*>(watched);
    return widget == m_control || widget->isAncestorOf(m_control);
}
