// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/LumWidgets/DialogPopups.h"

#include "platform/LumWidgets/X11Windows.h"

#include <QApplication>
#include <QBitmap>
#include <QEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace {

// A window of its own, and not one that Qt places below a parent by itself.
bool isParentlessPopup(const QWidget& widget)
{
    return widget.isWindow() && widget.windowType() == Qt::Popup && !widget.parentWidget();
}

bool isPlacedByCompositor()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

// What the widget paints becomes the window's outline.
void cutOut(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren | QWidget::IgnoreMask);
    const QImage outline = image.createAlphaMask(Qt::ThresholdAlphaDither | Qt::AvoidDither);
    widget.setMask(QBitmap::fromImage(outline));
}

} // namespace

DialogPopups::DialogPopups(QWidget* dialog) : m_dialog(dialog)
{
    qApp->installEventFilter(this);
}

DialogPopups::~DialogPopups() = default;

bool DialogPopups::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Expose) {
        if (m_dialog && watched == m_dialog->windowHandle()) {
            X11Windows::refreshPlace(*m_dialog->windowHandle());
        }
        return false;
    }
    const bool isPlacing = type == QEvent::Show || type == QEvent::Move || type == QEvent::Resize;
    if (isPlacing && !m_isBusy && m_dialog && watched->isWidgetType()) {
        auto* widget = static_cast<QWidget*>(watched);
        if (isParentlessPopup(*widget)) {
            prepare(*widget, type);
        }
    }
    return false;
}

void DialogPopups::prepare(QWidget& popup, int type)
{
    if (!isPlacedByCompositor()) {
        keepOnScreen(popup);
    }
    if (type == QEvent::Show) {
        adopt(popup);
    } else if (type == QEvent::Move && popup.isVisible() && isPlacedByCompositor()) {
        mapAnew(popup);
    }
    if (type != QEvent::Move && popup.testAttribute(Qt::WA_TranslucentBackground)) {
        if (X11Windows::areBlended()) {
            popup.clearMask();
        } else {
            cutOut(popup);
        }
    }
}

// The event comes when the window exists and isn't mapped yet. Compositors place a popup beside its
// parent only if it was opened by a click; a tip they always do.
void DialogPopups::adopt(QWidget& popup)
{
    QWindow* window = popup.windowHandle();
    if (!window || !m_dialog->windowHandle()) {
        return;
    }
    window->setTransientParent(m_dialog->windowHandle());
    if (isPlacedByCompositor()) {
        window->setFlags((window->flags() & ~Qt::WindowType_Mask) | Qt::ToolTip);
    }
}

// On the dialog's, whatever is beside it. A balloon that is too large shows its beginning.
void DialogPopups::keepOnScreen(QWidget& popup)
{
    const QRect room = m_dialog->screen()->availableGeometry();
    const QRect place = popup.geometry();
    const QPoint corner(qMax(room.left(), qMin(place.left(), room.right() - place.width() + 1)),
                        qMax(room.top(), qMin(place.top(), room.bottom() - place.height() + 1)));
    if (corner != place.topLeft()) {
        const QScopedValueRollback<bool> rollback(m_isBusy, true);
        popup.move(corner);
    }
}

// Only when it is mapped a popup tells the compositor its place.
void DialogPopups::mapAnew(QWidget& popup)
{
    const QScopedValueRollback<bool> rollback(m_isBusy, true);
    popup.hide();
    popup.show();
}
