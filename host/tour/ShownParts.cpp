// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/ShownParts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QBitmap>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSlider>
#include <QStyle>
#include <QStyleOption>

namespace {

using Parts = std::vector<ShownPart>;

QRect inWindow(const QWidget& widget, const QRect& rect)
{
    return {widget.mapTo(widget.window(), rect.topLeft()), rect.size()};
}

// What a widget and all that contain it leave of a place.
QRect clipped(const QWidget& widget, const QRect& rect)
{
    QRect result = inWindow(widget, rect);
    for (const QWidget* around = &widget; !around->isWindow(); around = around->parentWidget()) {
        result &= inWindow(*around, around->rect());
    }
    return result & widget.window()->rect();
}

// The box of a line is higher than its letters, above all in fonts for many scripts. So the box may
// be cut off a little at its edges.
int inkHeight(const QFontMetrics& metrics, const QString& text, int boxHeight)
{
    QString line = text;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return boxHeight - metrics.height() + metrics.tightBoundingRect(line).height();
}

ShownPart aligned(const QWidget& widget, const QString& text, const QSize& needed,
                  const QRect& room, Qt::Alignment alignment, Qt::LayoutDirection direction)
{
    const QRect painted = QStyle::alignedRect(direction, alignment, needed, room);
    return {&widget, text, needed, clipped(widget, room), inWindow(widget, painted)};
}

ShownPart plainControl(const QWidget& widget)
{
    const QRect place = inWindow(widget, widget.rect());
    return {&widget, {}, place.size(), clipped(widget, widget.rect()), place};
}

void addLabel(Parts& parts, const QLabel& label)
{
    const int margin = label.margin();
    const QRect room = label.contentsRect().adjusted(margin, margin, -margin, -margin);
    const QPixmap pixmap = label.pixmap(Qt::ReturnByValue);
    if (!pixmap.isNull()) {
        const QSize size =
            label.hasScaledContents() ? room.size() : pixmap.size() / pixmap.devicePixelRatioF();
        // The hand that points at a button lies on it.
        if (!label.testAttribute(Qt::WA_TransparentForMouseEvents)) {
            parts.push_back(
                aligned(label, {}, size, room, label.alignment(), label.layoutDirection()));
        }
    } else if (!label.text().isEmpty()) {
        const int flags = int(label.alignment()) | (label.wordWrap() ? Qt::TextWordWrap : 0);
        QSize needed = label.fontMetrics()
                           .boundingRect(QRect(QPoint(), room.size()), flags, label.text())
                           .size();
        needed.setHeight(inkHeight(label.fontMetrics(), label.text(), needed.height()));
        // The words decide on which side a label begins.
        const bool isToTheLeft = label.text().isRightToLeft();
        parts.push_back(aligned(label, label.text(), needed, room, label.alignment(),
                                isToTheLeft ? Qt::RightToLeft : Qt::LeftToRight));
    }
}

// The whole of it is measured: styles paint the words elsewhere than they say.
void addRadioButton(Parts& parts, const QRadioButton& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    const QRect words =
        button.style()->subElementRect(QStyle::SE_RadioButtonContents, &option, &button);
    const QFontMetrics metrics = button.fontMetrics();
    const QSize needed(button.sizeHint().width(),
                       inkHeight(metrics, button.text(), metrics.height()));
    parts.push_back(
        {&button, button.text(), needed, clipped(button, button.rect()), inWindow(button, words)});
}

void addButton(Parts& parts, const QAbstractButton& button)
{
    if (button.text().isEmpty()) {
        parts.push_back(plainControl(button));
        return;
    }
    QRect room = button.rect();
    if (!button.icon().isNull()) {
        room.setLeft(button.iconSize().width());
    }
    const QString text = QString(button.text()).remove(QLatin1Char('&'));
    const QFontMetrics metrics = button.fontMetrics();
    const QSize needed(metrics.horizontalAdvance(text), inkHeight(metrics, text, metrics.height()));
    parts.push_back(aligned(button, text, needed, room, Qt::AlignCenter, button.layoutDirection()));
}

// A slider paints less than its own rectangle.
void addSlider(Parts& parts, const QSlider& slider)
{
    QImage image(slider.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const_cast<QSlider&>(slider).render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    const QRect ink = QRegion(QBitmap::fromImage(image.createAlphaMask())).boundingRect();
    const QRect place = inWindow(slider, ink);
    parts.push_back({&slider, {}, place.size(), clipped(slider, ink), place});
}

void addLineEdit(Parts& parts, const QLineEdit& edit)
{
    if (!edit.displayText().isEmpty()) {
        parts.push_back(plainControl(edit));
        parts.back().text = edit.displayText();
        parts.back().mayBeCut = true;
    }
}

void addRows(Parts& parts, const QAbstractItemView& view)
{
    for (int row = 0; view.model() && row < view.model()->rowCount(view.rootIndex()); ++row) {
        const QModelIndex index = view.model()->index(row, 0, view.rootIndex());
        const QString text = index.data().toString();
        const QRect place = view.visualRect(index) & view.viewport()->rect();
        if (!text.isEmpty() && !view.indexWidget(index) && !place.isEmpty()) {
            const QRect shown = inWindow(*view.viewport(), place);
            parts.push_back({&view, text, shown.size(), shown, shown, true});
        }
    }
}

void add(Parts& parts, const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        addLabel(parts, *label);
    } else if (const auto* radio = qobject_cast<const QRadioButton*>(&widget)) {
        addRadioButton(parts, *radio);
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        addButton(parts, *button);
    } else if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        addLineEdit(parts, *edit);
    } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
        addRows(parts, *view);
    } else if (const auto* slider = qobject_cast<const QSlider*>(&widget)) {
        addSlider(parts, *slider);
    } else if (qobject_cast<const QComboBox*>(&widget) ||
               qobject_cast<const QProgressBar*>(&widget)) {
        parts.push_back(plainControl(widget));
    }
}

} // namespace

QString ShownPart::name() const
{
    const QString objectName = widget->objectName();
    return QStringLiteral("%1 \"%2\"")
        .arg(objectName.isEmpty() ? QString::fromLatin1(widget->metaObject()->className())
                                  : objectName,
             QString(text).replace(QLatin1Char('\n'), QLatin1Char('|')).left(40));
}

std::vector<ShownPart> ShownPart::of(const QWidget& window)
{
    Parts parts;
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (widget->isVisible() && widget->window() == &window &&
            !widget->visibleRegion().isEmpty()) {
            add(parts, *widget);
        }
    }
    return parts;
}
