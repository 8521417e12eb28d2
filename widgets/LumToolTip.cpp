// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "widgets/LumToolTip.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr QMargins PopupMargins(5, 3, 5, 8); // the arrow takes its room at the bottom
constexpr int FontPixelSize = 12;
constexpr int ArrowWidth = 10;
constexpr int ArrowHeight = 5;
constexpr int ArrowLeftMargin = 10;
constexpr int CornerRadius = 4;
constexpr qreal BalloonOpacity = 0.85;

const QLatin1String LabelStyle("color: white; background-color: transparent;");

} // namespace

LumToolTip::LumToolTip(const QString& text, bool wordWrap, QWidget* parent, Qt::Alignment alignment,
                       bool hideOnLeave, const QColor& background)
    : QWidget(parent),
      m_label(text, this),
      m_alignment(alignment),
      m_background(background),
      m_hideOnLeave(hideOnLeave),
      m_layout(this)
{
    if (!parent) {
        setWindowFlags(windowFlags() | Qt::Popup | Qt::FramelessWindowHint |
                       Qt::NoDropShadowWindowHint);
        setAttribute(Qt::WA_TranslucentBackground);
        m_layout.setContentsMargins(PopupMargins);
    }
    m_layout.addWidget(&m_label);
    m_label.setWordWrap(wordWrap);
    m_label.adjustSize();
    m_label.setStyleSheet(LabelStyle);
    adjustSize();
}

LumToolTip::~LumToolTip() = default;

QString LumToolTip::text() const
{
    return m_label.text();
}

void LumToolTip::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    if (m_hideOnLeave) {
        hide();
    }
}

void LumToolTip::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = painter.font();
    font.setPixelSize(FontPixelSize);
    painter.setFont(font);

    const QRect balloon = rect().adjusted(0, 0, 0, -ArrowHeight);
    const int arrowLeft = m_alignment == Qt::AlignCenter ? balloon.center().x() - ArrowWidth / 2
                                                         : balloon.left() + ArrowLeftMargin;
    const int arrowTip = arrowLeft + ArrowWidth / 2;
    QPainterPath arrow;
    arrow.moveTo(arrowLeft, balloon.bottom());
    arrow.lineTo(arrowTip, balloon.bottom() + ArrowHeight);
    arrow.lineTo(arrowLeft + ArrowWidth, balloon.bottom());
    arrow.closeSubpath();
    QPainterPath path;
    path.addRoundedRect(balloon, CornerRadius, CornerRadius);

    painter.setOpacity(BalloonOpacity);
    painter.fillPath(path.united(arrow), m_background);
}
