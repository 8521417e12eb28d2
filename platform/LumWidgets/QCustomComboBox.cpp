// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumWidgets/QCustomComboBox.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QMouseEvent>

QCustomComboBox::QCustomComboBox(QWidget* parent, bool /*isThemed*/) : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    // Of a name that is too long its beginning is shown.
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), lineEdit(),
            [this] { lineEdit()->setCursorPosition(0); });
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
    QComboBox::showPopup();
}

bool QCustomComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonPress && isEnabled() &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        showPopup();
        return true;
    }
    return QComboBox::eventFilter(watched, event);
}
