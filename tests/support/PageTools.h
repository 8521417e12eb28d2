// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/LumToolTip.h"

#include <QApplication>
#include <QImage>
#include <QMetaMethod>

// What the tests of the pages look at.

const QString DeviceBoxStyle =
    "QComboBox\n{\t\nborder: 1px solid #E8E8E8;\nbackground: #F7F7F7;\nborder-radius: "
    "4px;\nfont-size: 12px;\ncolor: #808080;\npadding-left: 8px;\ncombobox-popup: "
    "0;\n}\nQComboBox::drop-down{\nborder: none;\nmargin-right: "
    "5px;\n}\nQComboBox::down-arrow{\n    image: "
    "url(:/Kestrel/Images/drop_down.png);\n}\n";

inline QString answerButtonStyle(int minimumWidth, int height, int maximumWidth)
{
    return QStringLiteral(
               "QPushButton\n{\n  border-radius: 4px;  \n  min-width: %1px;\n  min-height: %2px;\n"
               "  max-width: %3px;\n  max-height: %2px;\n  font-size: 14px;\n  background-color: "
               "#FFFFFF;\n\tcolor: #232323;\n\tborder: 1px solid rgba(213, 213, 213, "
               "255);\n}\n\nQPushButton:hover\n{\n  background-color: #F7F7F7;\n\tborder: 1px "
               "solid "
               "rgba(0, 0, 0, 76);\n}\nQPushButton:disabled\n{\n\tborder-radius: 4px; "
               "\n\tbackground-color: #D3D3D3;\n\tborder: none;\n}")
        .arg(minimumWidth)
        .arg(height)
        .arg(maximumWidth);
}

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
