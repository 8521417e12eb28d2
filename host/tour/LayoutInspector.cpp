// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/LayoutInspector.h"

#include "host/tour/PixelContrast.h"
#include "host/tour/ShownParts.h"

#include <LumUtility/LumColor.h>

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace {

// Letters may reach a little beyond their width.
constexpr int TolerancePx = 2;
// Letters aren't exactly in the middle of their line.
constexpr int OverlapTolerancePx = 4;
// Thin strokes have their colour only on a sharp picture.
constexpr int Sharpness = 3;
constexpr int InkTolerance = 1;
// A line of this length shows the focus.
constexpr int LeastFocusPixels = 12;

// Colours of texts that the pages fix, ground and ink: these texts are as faint everywhere.
bool isFixed(const PixelContrast::Colors& colors)
{
    const PixelContrast::Colors fixed[] = {
        {0xFFFFFFFF, 0xFF009265}, {0xFF009265, 0xFFFFFFFF},          {0xFFFFFFFF, 0xFF999999},
        {0xFFFFFFFF, 0xFF808080}, {0xFFF7F7F7, 0xFF808080},          {0xFFFFFFFF, 0xFF7B7B7B},
        {0xFFFFFFFF, 0xFFB4B4B4}, {0xFFFFFFFF, LumColor::Red.rgb()}, {0xFF27A37D, 0xFFFFFFFF},
        {0xFFFF6648, 0xFFFFFFFF}, // balloons, on white
        {0xFFFFFFFF, 0xFF7E7E7E}, // 0xFF7B7B7B in words too short to have pixels of the full colour
    };
    const auto isNear = [](QRgb a, QRgb b) {
        return std::abs(qRed(a) - qRed(b)) <= InkTolerance &&
               std::abs(qGreen(a) - qGreen(b)) <= InkTolerance &&
               std::abs(qBlue(a) - qBlue(b)) <= InkTolerance;
    };
    return std::any_of(std::begin(fixed), std::end(fixed), [&](const PixelContrast::Colors& pair) {
        return isNear(pair.ground, colors.ground) && isNear(pair.ink, colors.ink);
    });
}

QImage sharpPicture(const QWidget& window, const QRect& place)
{
    QImage image(place.size() * Sharpness, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(Sharpness);
    image.fill(Qt::white); // below a balloon there is the page
    const_cast<QWidget&>(window).render(&image, QPoint(), place);
    return image;
}

void findCutOff(const ShownPart& part, QStringList& problems)
{
    const bool isCut = part.needed.width() > part.room.width() + TolerancePx ||
                       part.needed.height() > part.room.height() + TolerancePx;
    if (isCut && !part.mayBeCut) {
        problems << QStringLiteral("cut off: %1 needs %2x%3, has %4x%5")
                        .arg(part.name())
                        .arg(part.needed.width())
                        .arg(part.needed.height())
                        .arg(part.room.width())
                        .arg(part.room.height());
    }
}

// A balloon may cover other parts.
bool isOnBalloon(const QWidget& widget)
{
    return widget.inherits("LumToolTip") || widget.parentWidget()->inherits("LumToolTip");
}

void findOverlap(const ShownPart& part, const ShownPart& other, QStringList& problems)
{
    // A meter is drawn by a bar on another one.
    const bool isMeter = part.widget->inherits("QProgressBar") && part.painted == other.painted;
    const bool isInside = isMeter || part.widget == other.widget ||
                          part.widget->isAncestorOf(other.widget) ||
                          other.widget->isAncestorOf(part.widget);
    const QRect both = part.painted & other.painted;
    if (!isInside && !isOnBalloon(*part.widget) && !isOnBalloon(*other.widget) &&
        both.width() > TolerancePx && both.height() > OverlapTolerancePx) {
        problems << QStringLiteral("overlap: %1 and %2").arg(part.name(), other.name());
    }
}

bool isUnderBalloon(const ShownPart& part, const QRect& place)
{
    const QWidget& window = *part.widget->window();
    const QList<QWidget*> widgets = window.findChildren<QWidget*>();
    return std::any_of(widgets.begin(), widgets.end(), [&](const QWidget* widget) {
        return widget->inherits("LumToolTip") && widget->isVisible() &&
               !widget->isAncestorOf(part.widget) &&
               QRect(widget->mapTo(&window, QPoint()), widget->size()).intersects(place);
    });
}

// What is disabled may be faint.
void findFaint(const ShownPart& part, const QWidget& window, QStringList& problems)
{
    const QRect place = part.painted & part.room;
    if (part.text.isEmpty() || !part.widget->isEnabled() || place.isEmpty() ||
        isUnderBalloon(part, place)) {
        return;
    }
    const PixelContrast::Colors colors = PixelContrast::ofText(sharpPicture(window, place));
    if (colors.ratio() < Contrast::LeastOfText && !isFixed(colors)) {
        problems << QStringLiteral("faint: %1 has a contrast of %2:1, %3 on %4")
                        .arg(part.name())
                        .arg(colors.ratio(), 0, 'f', 2)
                        .arg(QColor(colors.ink).name(), QColor(colors.ground).name());
    }
}

// As somebody at the keyboard does, whom alone the focus is shown to.
void pressKey(QWidget* window)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_Shift, Qt::ShiftModifier);
        QCoreApplication::sendEvent(window, &event);
    }
}

void findTooLarge(const QWidget& window, QStringList& problems)
{
    const QSize size = window.frameGeometry().size();
    const QSize room = window.screen()->size();
    if (size.width() > room.width() || size.height() > room.height()) {
        problems << QStringLiteral("too large: the window has %1x%2, the screen %3x%4")
                        .arg(size.width())
                        .arg(size.height())
                        .arg(room.width())
                        .arg(room.height());
    }
}

} // namespace

QStringList LayoutInspector::inspect(const QWidget* window)
{
    QStringList problems;
    const std::vector<ShownPart> parts = ShownPart::of(*window);
    for (auto part = parts.begin(); part != parts.end(); ++part) {
        findCutOff(*part, problems);
        for (auto other = parts.begin(); other != part; ++other) {
            findOverlap(*part, *other, problems);
        }
        findFaint(*part, *window, problems);
    }
    findTooLarge(*window, problems);
    return problems;
}

QStringList LayoutInspector::inspectFocus(QWidget* window)
{
    QStringList problems;
    QApplication::setActiveWindow(window); // no window manager may have done so
    QWidget* const owner = window->focusWidget();
    pressKey(window);
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (!widget->isVisible() || !widget->isEnabled() || widget->window() != window ||
            !(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy()) {
            continue;
        }
        widget->setFocus(Qt::TabFocusReason);
        const QImage with = sharpPicture(*window, window->rect());
        widget->clearFocus();
        const QImage without = sharpPicture(*window, window->rect());
        const double ratio = PixelContrast::ofChange(without, with, LeastFocusPixels * Sharpness);
        if (ratio < Contrast::LeastOfFocus) {
            problems << QStringLiteral("faint focus: %1 shows it with a contrast of %2:1")
                            .arg(ShownPart{widget, {}, {}, {}, {}}.name())
                            .arg(ratio, 0, 'f', 2);
        }
    }
    if (owner) {
        owner->setFocus();
    }
    return problems;
}

QStringList LayoutInspector::inspectPopup(const QRect& popup, const QRect& anchor, double scale)
{
    const int right = std::max(popup.left() - anchor.right(), anchor.left() - popup.right());
    const int below = std::max(popup.top() - anchor.bottom(), anchor.top() - popup.bottom());
    const double gap = std::max({right, below, 0}) / scale;
    if (gap <= MaxPopupGap) {
        return {};
    }
    return {QStringLiteral("far: the popup is %1 pixels from what it belongs to").arg(gap)};
}
