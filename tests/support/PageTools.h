// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/LumToolTip.h"

#include <QApplication>
#include <QImage>
#include <QMetaMethod>

// What the tests of the pages look at.

template <typename T>
T* childOf(const QWidget& page, const char* name)
{
    T* child = page.findChild<T*>(QLatin1String(name));
    if (!child) {
        qFatal("the page has no %s %s", T::staticMetaObject.className(), name);
    }
    return child;
}

// The balloons that are popups, shown or not.
inline QList<LumToolTip*> balloons()
{
    QList<LumToolTip*> result;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (auto* balloon = qobject_cast<LumToolTip*>(widget)) {
            result.append(balloon);
        }
    }
    return result;
}

inline LumToolTip* balloonWith(const QString& text)
{
    for (LumToolTip* balloon : balloons()) {
        if (balloon->text() == text) {
            return balloon;
        }
    }
    return nullptr;
}

inline bool isArrowInTheMiddle(LumToolTip& balloon)
{
    QImage picture(balloon.size(), QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    balloon.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    const int arrowRow = balloon.height() - 5;
    const int leftArrow = 15; // where the tip of the other kind's arrow is
    return qAlpha(picture.pixel(balloon.width() / 2, arrowRow)) > 127 &&
           qAlpha(picture.pixel(leftArrow, arrowRow)) == 0;
}

// The signatures that a class adds to its base's meta-object.
inline QList<QByteArray> ownMethods(const QMetaObject& meta)
{
    QList<QByteArray> result;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        result.append(meta.method(i).methodSignature());
    }
    return result;
}
