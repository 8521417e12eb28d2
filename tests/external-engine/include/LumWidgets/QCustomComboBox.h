// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

class QCustomComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit QCustomComboBox(QWidget* parent, bool = true) : QComboBox(parent)
    {
        setEditable(true);
    }

    void setPopupWidth(int) {}
    void setEnableClickLineEdit(bool) {}
};
