// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "wizard/WelcomePage.h"

#include "ui_WelcomePage.h"

#include <QPainter>

WelcomePage::WelcomePage(QWidget* parent) : QFrame(parent), ui(std::make_unique<Ui::WelcomePage>())
{
    ui->setupUi(this);
    setStyleSheet(QStringLiteral("QFrame{border: 0px;}"));
    ui->tb_skip->setVisible(false);
    ui->pb_start_check->setDefault(true);
    connect(ui->pb_start_check, &QPushButton::clicked, this, &WelcomePage::startCheck);

    ui->wellcomeTest1->setText(qtTrId("ID_WelcomePage_Welcome"));
    ui->wellcomeText2->setText(
        tr("&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;To ensure good service, we will test "
           "your system.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;"));
    ui->pb_start_check->setText(qtTrId("ID_WelcomePage_StartTest"));
    ui->wellcomeTest1->setText(qtTrId("ID_Skip"));
}

WelcomePage::~WelcomePage() = default;

void WelcomePage::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        painter.drawImage(rect(), QImage(QStringLiteral(":/Kestrel/Images/back.png")));
    }
    QFrame::paintEvent(event);
}
