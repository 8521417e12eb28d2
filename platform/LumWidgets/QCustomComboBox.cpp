// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumWidgets/QCustomComboBox.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStylePainter>

namespace {

constexpr int TextMargin = 2; // as in the line edit

QString absenceText()
{
    return qtTrId("ID_Engine_NotConnected");
}

} // namespace

QCustomComboBox::QCustomComboBox(QWidget* parent, bool /*isThemed*/) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    // Of a name that is too long its beginning is shown.
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), lineEdit(), [this] {
        lineEdit()->setCursorPosition(0);
        lineEdit()->setAccessibleDescription(isShowingAbsence() ? absenceText() : QString());
    });
}

QCustomComboBox::~QCustomComboBox() = default;

void QCustomComboBox::setPopupWidth(int pixels)
{
    m_popupWidth = pixels;
}

void QCustomComboBox::setEnableClickLineEdit(bool enabled)
{
    lineEdit()->removeEventFilter(this);
    if (enabled) {
        lineEdit()->installEventFilter(this);
    }
}

void QCustomComboBox::showPopup()
{
    if (m_popupWidth > 0) {
        view()->setFixedWidth(m_popupWidth);
    }
    view()->window()->installEventFilter(this);
    QComboBox::showPopup();
}

bool QCustomComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == lineEdit() && isEnabled() && takesClick(event)) {
        return true;
    }
    // A press beside the open popup closes it, and Qt then repeats the press for what lies below.
    // For the line edit that would open the popup again.
    if (event->type() == QEvent::MouseButtonPress && watched == view()->window()) {
        const QPoint place =
            lineEdit()->mapFromGlobal(static_cast<QMouseEvent*>(event)->globalPos());
        view()->window()->setAttribute(Qt::WA_NoMouseReplay, lineEdit()->rect().contains(place));
    }
    return QComboBox::eventFilter(watched, event);
}

void QCustomComboBox::paintEvent(QPaintEvent* event)
{
    QComboBox::paintEvent(event);
    if (!isShowingAbsence()) {
        return;
    }
    QStylePainter painter(this);
    const QRect place = lineEdit()->geometry().adjusted(TextMargin, 0, -TextMargin, 0);
    const QString text = fontMetrics().elidedText(absenceText(), Qt::ElideRight, place.width());
    painter.drawItemText(
        place,
        static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) |
                         Qt::AlignVCenter),
        palette(), isEnabled(), text, QPalette::Text);
}

// The popup opens at the end of the click: opened by the press, it would take the release for a
// click beside it and close.
bool QCustomComboBox::takesClick(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_isPressed = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
        return m_isPressed;
    case QEvent::MouseMove:
        return m_isPressed;
    case QEvent::MouseButtonRelease: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (!m_isPressed || mouse->button() != Qt::LeftButton) {
            return false;
        }
        m_isPressed = false;
        if (lineEdit()->rect().contains(mouse->pos())) {
            showPopup();
        }
        return true;
    }
    default:
        return false;
    }
}

bool QCustomComboBox::isShowingAbsence() const
{
    return currentIndex() < 0 && count() > 0 && lineEdit()->isReadOnly() &&
           lineEdit()->text().isEmpty();
}
