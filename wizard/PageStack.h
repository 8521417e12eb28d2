// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStackedWidget>

// A stacked widget whose pages a form makes as its children from the start. uic makes those of a
// QStackedWidget without a parent, and Qt applies all style sheets below again when they get one.
// Whoever has the form adds the pages.
class PageStack : public QStackedWidget
{
public:
    using QStackedWidget::QStackedWidget;
};
