// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

// What a dialog's popups need from the window system, also those that were made without a parent:
// to belong to the dialog, to be mapped at their own place, to stay on the screen, and
// to show no black corners if windows aren't blended. Watches all popups while it lives. GUI
// thread only.
class DialogPopups : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(DialogPopups)

public:
    explicit DialogPopups(QWidget* dialog);
    ~DialogPopups() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void prepare(QWidget& popup, int type); // an event's type
    void keepOnScreen(QWidget& popup);
    void adopt(QWidget& popup);
    void mapAnew(QWidget& popup);

    QPointer<QWidget> m_dialog;
    bool m_isBusy = false;
};
