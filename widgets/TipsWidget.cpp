// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "widgets/TipsWidget.h"

#include <QMouseEvent>

namespace {

// The alpha byte has no effect: the balloon brings its own transparency.
constexpr QRgb TipBackground = 0x80232323;
constexpr int TipWidth = 448;
constexpr QMargins TipMargins(4, 6, 4, 10);
constexpr int TipShift = 8; // to the left of the button

constexpr QSize IconSize(16, 16);
constexpr int IconSpacing = 4;
constexpr int LineHeight = 24;
constexpr int ButtonHeight = 48;
constexpr int RestStretch = 100;

const QLatin1String IconPath(":/common/images/common/invite_more.svg"); // the host's
const QLatin1String
    ButtonStyle("QPushButton{ background: transparent; color: #999999; font-size:12px; "
                "padding-left: 0px; padding-right: 0px; border:none;}");

} // namespace

TipsWidget::TipsWidget(const QString& buttonText, const QString& tipText, QWidget* parent)
    : m_button(parent), m_tip(tipText, false, nullptr, Qt::AlignLeft, true, QColor(TipBackground))
{
    m_tip.hide();

    m_button.setStyleSheet(ButtonStyle);
    QIcon icon;
    icon.addFile(IconPath, IconSize, QIcon::Normal, QIcon::Off);
    m_button.setIcon(icon);
    m_button.setIconSize(IconSize);
    m_button.setText(QLatin1Char(' ') + buttonText);
    m_button.setAccessibleName(buttonText);
    m_button.setAccessibleDescription(tipText);
    m_button.setFixedHeight(LineHeight);
    m_button.setFixedHeight(ButtonHeight);
    m_button.setCursor(Qt::PointingHandCursor);
    m_button.ensurePolished(); // so that the style sheet's font is measured
    m_button.setFixedWidth(m_button.fontMetrics().horizontalAdvance(m_button.text()) + IconSpacing +
                           IconSize.width());

    addWidget(&m_button);
    addStretch(RestStretch);
    connect(&m_button, &QPushButton::clicked, this, &TipsWidget::toggleTip);

    m_tip.setFixedWidth(TipWidth);
    m_tip.setContentsMargins(TipMargins);
    m_tip.adjustSize();
    m_tip.installEventFilter(this);
}

TipsWidget::~TipsWidget() = default;

QWidget* TipsWidget::button()
{
    return &m_button;
}

bool TipsWidget::eventFilter(QObject* watched, QEvent* event)
{
    // A press beside the open balloon closes it, and Qt then repeats the press for what lies below.
    // For the button that would open the balloon again.
    if (watched == &m_tip && event->type() == QEvent::MouseButtonPress) {
        const QPoint position = static_cast<QMouseEvent*>(event)->globalPos();
        const bool isOnButton = m_button.rect().contains(m_button.mapFromGlobal(position));
        m_tip.setAttribute(Qt::WA_NoMouseReplay, isOnButton);
    }
    return QHBoxLayout::eventFilter(watched, event);
}

void TipsWidget::toggleTip()
{
    if (m_tip.isHidden()) {
        m_tip.show();
        const QPoint corner = m_button.geometry().topLeft() - QPoint(TipShift, 0);
        QRect rect = m_tip.geometry();
        rect.moveBottomLeft(m_button.parentWidget()->mapToGlobal(corner));
        m_tip.setGeometry(rect);
        m_tip.raise();
    } else {
        m_tip.hide();
    }
}
