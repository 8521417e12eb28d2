// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QWidget>

// The dialog as a user sees it: its visible widgets by object name, and a picture of it with its
// balloons, popups and questions. GUI thread only.
class DialogView
{
public:
    explicit DialogView(QWidget* dialog) : m_dialog(dialog) {}

    QWidget* dialog() const { return m_dialog; }

    // The visible widget of that name, or null.
    template <typename Widget>
    Widget* find(const char* name) const
    {
        const QList<Widget*> all = m_dialog->findChildren<Widget*>(QLatin1String(name));
        for (Widget* widget : all) {
            if (widget->isVisible()) {
                return widget;
            }
        }
        return nullptr;
    }
    bool isEnabled(const char* buttonName) const;
    // Clicks from the event loop: the click may open a dialog with its own event loop.
    void click(const char* buttonName) const;

    // All visible windows: the dialog first, then those above it.
    QWidgetList windows() const;
    QPixmap picture() const;

private:
    QPointer<QWidget> m_dialog;
};
