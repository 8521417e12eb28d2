// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <LumWidgets/QCustomComboBox.h>
#include <LumWidgets/QCustomComboBoxItem.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QtTest>

// What holds for the device boxes of the sound pages.
namespace DeviceComboChecks {

inline void isSetUp(QCustomComboBox* combo, const QWidget* page)
{
    auto* delegate = qobject_cast<QCustomComboBoxItem*>(combo->itemDelegate());
    QVERIFY(delegate);
    QCOMPARE(delegate->parent(), page);
    QCOMPARE(combo->view()->verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
    QCOMPARE(combo->view()->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(combo->view()->styleSheet(), QString("background-color: white"));
    QCOMPARE(combo->maxVisibleItems(), 8);
    QVERIFY(combo->lineEdit()->isReadOnly());
    QCOMPARE(combo->lineEdit()->styleSheet(),
             QString("background-color: transparent; border: none;"));
    QTest::mouseClick(combo->lineEdit(), Qt::LeftButton);
    QVERIFY(combo->view()->isVisible());
    QCOMPARE(combo->view()->width(), 306);
    combo->hidePopup();
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

} // namespace DeviceComboChecks
