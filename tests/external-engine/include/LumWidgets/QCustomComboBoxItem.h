// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

class QCustomComboBoxItem : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit QCustomComboBoxItem(QObject* parent) : QStyledItemDelegate(parent) {}
};
