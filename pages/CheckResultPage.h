// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/CheckPage.h"

#include <memory>

namespace Ui {
class CheckResultPage;
}

// The summary: a row for each check with its problems and its verdict, and what to do next. Filled
// anew at every showing. GUI thread only.
class CheckResultPage : public CheckPage
{
    Q_OBJECT
    Q_DISABLE_COPY(CheckResultPage)

public:
    explicit CheckResultPage(QWidget* parent = nullptr);
    ~CheckResultPage() override;

    // Not owned; needed before the page is shown.
    void setPages(CheckPage* system, CheckPage* camera, CheckPage* headphone,
                  CheckPage* microphone);
    bool isRedetect() const; // which button was pressed last

protected:
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void on_okButton_clicked();
    void on_redetectButton_clicked();

private:
    void setupTable();
    void fillRow(int row, const QString& name, const CheckPage& page);
    void setCell(int row, int column, const QString& text, const QString& color,
                 Qt::Alignment alignment);
    void showSummary(bool allPassed);

    std::unique_ptr<Ui::CheckResultPage> ui;
    CheckPage* m_systemPage = nullptr;
    CheckPage* m_cameraPage = nullptr;
    CheckPage* m_headphonePage = nullptr;
    CheckPage* m_microphonePage = nullptr;
    bool m_redetect = false;
};
