// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/LayoutInspector.h"

#include "host/tour/Contrast.h"

#include <QAbstractButton>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>
#include <map>
#include <vector>

namespace {

// Letters may reach a little beyond their width.
constexpr int TolerancePx = 2;
// Letters aren't exactly in the middle of their line.
constexpr int OverlapTolerancePx = 4;
// Object names of texts whose colour the frame sets.
const char* const OwnColorNames[] = {"titleLabel", "closeButton"};

struct ShownText
{
    const QWidget* widget;
    QString text;
    QSize needed; // of the painted text
    QRect room;   // where it may be painted, in coordinates of the window
    Qt::Alignment alignment;

    QRect painted(const QWidget* window) const
    {
        return QStyle::alignedRect(window->layoutDirection(), alignment, needed, room);
    }
};

QString plain(const QString& text)
{
    return QString(text).remove(QLatin1Char('&'));
}

QRect inWindow(const QWidget* widget, const QRect& rect, const QWidget* window)
{
    return {widget->mapTo(const_cast<QWidget*>(window), rect.topLeft()), rect.size()};
}

// The box of a line is higher than its letters, above all in fonts for many scripts. So the box may
// be cut off a little at its edges.
int inkHeight(const QFontMetrics& metrics, const QString& text, int boxHeight)
{
    QString line = text;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return boxHeight - metrics.height() + metrics.tightBoundingRect(line).height();
}

ShownText textOf(const QLabel* label, const QWidget* window)
{
    const int margin = label->margin();
    const QRect room = label->contentsRect().adjusted(margin, margin, -margin, -margin);
    const int flags = int(label->alignment()) | (label->wordWrap() ? Qt::TextWordWrap : 0);
    QSize needed = label->fontMetrics()
                       .boundingRect(QRect(QPoint(), room.size()), flags, label->text())
                       .size();
    needed.setHeight(inkHeight(label->fontMetrics(), label->text(), needed.height()));
    return {label, label->text(), needed, inWindow(label, room, window), label->alignment()};
}

ShownText textOf(const QAbstractButton* button, const QWidget* window)
{
    QRect room = button->rect();
    Qt::Alignment alignment = Qt::AlignCenter;
    if (qobject_cast<const QRadioButton*>(button)) {
        QStyleOptionButton option;
        option.initFrom(button);
        room = button->style()->subElementRect(QStyle::SE_RadioButtonContents, &option, button);
        alignment = Qt::AlignLeft | Qt::AlignVCenter;
    } else if (!button->icon().isNull()) {
        room.setLeft(button->iconSize().width());
    }
    const QString text = plain(button->text());
    const QFontMetrics metrics = button->fontMetrics();
    const QSize needed(metrics.horizontalAdvance(text), inkHeight(metrics, text, metrics.height()));
    return {button, text, needed, inWindow(button, room, window), alignment};
}

std::vector<ShownText> textsOf(const QWidget* window)
{
    std::vector<ShownText> texts;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (!widget->isVisible() || widget->window() != window ||
            widget->visibleRegion().isEmpty()) {
            continue;
        }
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            if (!label->text().isEmpty()) {
                texts.push_back(textOf(label, window));
            }
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            if (!button->text().isEmpty()) {
                texts.push_back(textOf(button, window));
            }
        }
    }
    return texts;
}

// A balloon may cover other texts.
bool isBalloon(const QWidget* widget)
{
    return widget->parentWidget()->inherits("LumToolTip");
}

QString nameOf(const ShownText& text)
{
    const QString name = text.widget->objectName();
    return QStringLiteral("%1 \"%2\"")
        .arg(name.isEmpty() ? QString::fromLatin1(text.widget->metaObject()->className()) : name,
             QString(text.text).replace(QLatin1Char('\n'), QLatin1Char('|')).left(40));
}

// The background is the most frequent colour; the letters have the colour that differs most from
// it.
double paintedContrast(const ShownText& text, const QWidget* window, const QImage& picture)
{
    const qreal ratio = picture.devicePixelRatio();
    const QRect area = text.painted(window) & text.room;
    const QImage part = picture.copy(QRectF(area.topLeft() * ratio, area.size() * ratio).toRect())
                            .convertToFormat(QImage::Format_RGB32);
    std::map<QRgb, int> counts;
    for (int y = 0; y < part.height(); ++y) {
        for (int x = 0; x < part.width(); ++x) {
            ++counts[part.pixel(x, y)];
        }
    }
    const auto ground =
        std::max_element(counts.begin(), counts.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    double most = 1.0;
    for (const auto& [color, count] : counts) {
        most = std::max(most, Contrast::ratio(color, ground->first));
    }
    return most;
}

} // namespace

QStringList LayoutInspector::inspect(const QWidget* window)
{
    QStringList problems;
    const std::vector<ShownText> texts = textsOf(window);
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        if (text->needed.width() > text->room.width() + TolerancePx ||
            text->needed.height() > text->room.height() + TolerancePx) {
            problems << QStringLiteral("cut off: %1 needs %2x%3, has %4x%5")
                            .arg(nameOf(*text))
                            .arg(text->needed.width())
                            .arg(text->needed.height())
                            .arg(text->room.width())
                            .arg(text->room.height());
        }
        for (auto other = texts.begin(); other != text; ++other) {
            const bool isInside = text->widget->isAncestorOf(other->widget) ||
                                  other->widget->isAncestorOf(text->widget);
            const QRect both = text->painted(window) & other->painted(window);
            if (!isInside && !isBalloon(text->widget) && !isBalloon(other->widget) &&
                both.width() > TolerancePx && both.height() > OverlapTolerancePx) {
                problems << QStringLiteral("overlap: %1 and %2").arg(nameOf(*text), nameOf(*other));
            }
        }
    }
    const QImage picture = const_cast<QWidget*>(window)->grab().toImage();
    for (const ShownText& text : texts) {
        for (const char* name : OwnColorNames) {
            const bool isOwn = text.widget->objectName() == QLatin1String(name);
            const double ratio =
                isOwn ? paintedContrast(text, window, picture) : Contrast::LeastOfText;
            if (ratio < Contrast::LeastOfText) {
                problems << QStringLiteral("faint: %1 has a contrast of %2:1")
                                .arg(nameOf(text))
                                .arg(ratio, 0, 'f', 2);
            }
        }
    }
    return problems;
}
