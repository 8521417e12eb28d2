// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <memory>

namespace Ui {
class WelcomePage;
}

// An introduction that a host or a later frame may put in front of the checks; the wizard doesn't
// show it. GUI thread only.
class WelcomePage : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(WelcomePage)

public:
    explicit WelcomePage(QWidget* parent = nullptr);
    ~WelcomePage() override;

Q_SIGNALS:
    void startCheck();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<Ui::WelcomePage> ui;
};
