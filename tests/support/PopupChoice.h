// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QTest>

namespace TestSupport {

// Opens the list and clicks an entry, as a user does.
inline void chooseInPopup(QComboBox& box, const QString& text)
{
    box.showPopup();
    QAbstractItemView* const view = box.view();
    const QPoint place = view->visualRect(box.model()->index(box.findText(text), 0)).center();
    QTest::mouseMove(view->viewport(), place);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
}

} // namespace TestSupport
