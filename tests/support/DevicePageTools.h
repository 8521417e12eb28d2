// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/PageTools.h"
#include "tests/support/TimerTools.h"

#include <LumWidgets/QCustomComboBox.h>
#include <LumWidgets/QCustomComboBoxItem.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

// What the pages of the devices have in common.
namespace DevicePageTools {

// The hand has no name of its own.
inline QLabel* handOn(const QWidget& page, const char* frame)
{
    const auto labels = childOf<QFrame>(page, frame)->findChildren<QLabel*>(QString());
    for (QLabel* label : labels) {
        if (label->objectName().isEmpty()) {
            return label;
        }
    }
    return nullptr;
}

inline void looksLikeAHand(const QLabel* hand)
{
    QCOMPARE(hand->size(), QSize(38, 48));
    QVERIFY(hand->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(hand->styleSheet(), QString("background:transparent;border: none;"));
}

// Four ticks of its timer show its two pictures in turn.
inline void pulses(QWidget* page, int timerId, const QLabel* hand)
{
    QSet<QPair<int, int>> sizes;
    QSize last;
    for (int i = 0; i < 4; ++i) {
        tick(page, timerId);
        const QSize size = hand->pixmap(Qt::ReturnByValue).size();
        QVERIFY(size != last);
        last = size;
        sizes.insert({size.width(), size.height()});
    }
    QCOMPARE(sizes, (QSet<QPair<int, int>>{{31, 38}, {38, 48}}));
}

inline void isSetUp(QCustomComboBox* combo, const QWidget* page)
{
    auto* delegate = qobject_cast<QCustomComboBoxItem*>(combo->itemDelegate());
    QVERIFY(delegate);
    QCOMPARE(delegate->parent(), page);
    QCOMPARE(combo->view()->verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
    QCOMPARE(combo->view()->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(combo->lineEdit()->isReadOnly());
    QCOMPARE(combo->lineEdit()->styleSheet(),
             QString("background-color: transparent; border: none;"));
    QTest::mouseClick(combo->lineEdit(), Qt::LeftButton);
    QVERIFY(combo->view()->isVisible());
    QCOMPARE(combo->view()->width(), 306);
    combo->hidePopup();
}

inline void hasALongPopup(const QCustomComboBox* combo)
{
    QCOMPARE(combo->view()->styleSheet(), QString("background-color: white"));
    QCOMPARE(combo->maxVisibleItems(), 8);
}

inline void ignoresWheelAndArrows(QCustomComboBox* combo)
{
    const int index = combo->currentIndex();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up}) {
        QTest::keyClick(combo, key);
        QCOMPARE(combo->currentIndex(), index);
    }
    for (const int turn : {-120, 120}) {
        QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, turn), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(combo, &wheel);
        QCOMPARE(combo->currentIndex(), index);
    }
}

inline QStringList entries(const QComboBox& combo)
{
    QStringList result;
    for (int i = 0; i < combo.count(); ++i) {
        result.append(combo.itemText(i) + '=' + combo.itemData(i).toString());
    }
    return result;
}

} // namespace DevicePageTools
