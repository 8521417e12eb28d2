// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QPointer>

class ICustomedTitleBar;

class LumCustomNormalDialog : public QDialog
{
    Q_OBJECT

public:
    enum Type : int { Plain };

    LumCustomNormalDialog(Type, QWidget* parent, Qt::WindowFlags flags, ICustomedTitleBar*, bool);
    void setCenterWidget(QWidget* widget, bool);
    void setTitleText(const QString& text);
    int exec() override;
    void reject() override;

private:
    QPointer<QWidget> m_center;
};
