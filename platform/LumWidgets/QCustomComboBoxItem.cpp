// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumWidgets/QCustomComboBoxItem.h>

namespace {

constexpr int ItemHeight = 30;
const QColor TextColor(0x23, 0x23, 0x23);
const QColor CurrentColor(0xF0, 0xF0, 0xF0);

} // namespace

QCustomComboBoxItem::QCustomComboBoxItem(QObject* parent) : QStyledItemDelegate(parent)
{
}

QCustomComboBoxItem::~QCustomComboBoxItem() = default;

QSize QCustomComboBoxItem::sizeHint(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    return {QStyledItemDelegate::sizeHint(option, index).width(), ItemHeight};
}

void QCustomComboBoxItem::initStyleOption(QStyleOptionViewItem* option,
                                          const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->textElideMode = Qt::ElideMiddle;
    option->palette.setColor(QPalette::Text, TextColor);
    option->palette.setColor(QPalette::HighlightedText, TextColor);
    option->palette.setColor(QPalette::Highlight, CurrentColor);
}
