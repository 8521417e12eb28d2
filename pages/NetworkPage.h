// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/CheckPage.h"

#include <CoreEngine/CommandNetworkTest.h>
#include <memory>

namespace Ui {
class NetworkPage;
}

// The facts about the user, the machine and the session, and the measured network. Nothing is
// asked: the page counts as tested from the start. The measurement runs as long as the page lives;
// its figures are shown and recorded while the page is visible. GUI thread only.
class NetworkPage : public CheckPage
{
    Q_OBJECT
    Q_DISABLE_COPY(NetworkPage)

public:
    explicit NetworkPage(QWidget* parent = nullptr);
    ~NetworkPage() override;

    bool isPassed() const override; // by the figures alone
    std::vector<QString> problemList() const override;

private Q_SLOTS:
    void fillAccountInfo();

private:
    void fillMachineFacts();
    void setCaptions();
    void fillSessionFacts();
    void addTips();
    void refreshNetworkInfo();

    std::unique_ptr<Ui::NetworkPage> ui;
    bool m_delayOk = false;
    bool m_lossRateOk = false;
    CommandNetworkTest m_networkTest;
};
