// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/WindowPlaces.h"

#include "host/tour/ScreenPicture.h"

namespace {

constexpr int TitleHeight = 40; // nothing covers it, and nothing moves in it
constexpr int Border = 20;      // of a picture

QRect scaled(const QRect& rect, double scale)
{
    return QRectF(QPointF(rect.topLeft()) * scale, QSizeF(rect.size()) * scale).toRect();
}

QRect found(const QImage& screen, QWidget* window, const QRect& part, const QPoint& guess)
{
    const QImage picture = window->grab(part).toImage();
    const auto place = ScreenPicture::find(screen, picture, guess);
    const QSize size = scaled(window->rect(), window->devicePixelRatioF()).size();
    return place ? QRect(*place, size) : QRect();
}

} // namespace

WindowPlaces WindowPlaces::asToldByQt(const DialogView& view)
{
    const QWidgetList windows = view.windows();
    return {windows.first()->geometry(), windows.size() > 1 ? windows.last()->geometry() : QRect(),
            1};
}

WindowPlaces WindowPlaces::onScreen(const DialogView& view, const QImage& screen)
{
    const WindowPlaces told = asToldByQt(view);
    const QWidgetList windows = view.windows();
    WindowPlaces places;
    places.scale = view.dialog()->devicePixelRatioF();
    const QRect title(0, 0, told.dialog.width(), TitleHeight);
    places.dialog = found(screen, view.dialog(), title, told.dialog.topLeft() * places.scale);
    if (windows.size() > 1) {
        const QPoint offset = (told.popup.topLeft() - told.dialog.topLeft()) * places.scale;
        places.popup =
            found(screen, windows.last(), windows.last()->rect(), places.dialog.topLeft() + offset);
    }
    return places;
}

QRect WindowPlaces::of(const QWidget& inDialog) const
{
    const QRect place(inDialog.mapTo(inDialog.window(), QPoint()), inDialog.size());
    return scaled(place, scale).translated(dialog.topLeft());
}

QImage WindowPlaces::cutOut(const QImage& screen) const
{
    const QRect shown = dialog.isEmpty() ? screen.rect() : dialog | popup;
    return screen.copy(shown.adjusted(-Border, -Border, Border, Border) & screen.rect());
}
