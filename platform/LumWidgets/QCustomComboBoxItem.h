// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <LumWidgets/LumWidgetsExport.h>
#include <QStyledItemDelegate>

// Paints the entries of a QCustomComboBox: plain text, cut in the middle where it is too long.
class LUMWIDGETS_EXPORT QCustomComboBoxItem : public QStyledItemDelegate
{
    Q_OBJECT
    Q_DISABLE_COPY(QCustomComboBoxItem)

public:
    explicit QCustomComboBoxItem(QObject* parent);
    ~QCustomComboBoxItem() override;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
