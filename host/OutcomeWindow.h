// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"
#include "platform/backend/Mailbox.h"

#include <QDialog>
#include <memory>

class QGridLayout;
class QLabel;

namespace Ui {
class OutcomeWindow;
}

// Says in words how a run ended, why checks failed and what to do, and hands out its report: to the
// clipboard, to a file, to the program that shows pages. GUI thread only; files are written on
// another thread.
class OutcomeWindow : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(OutcomeWindow)

public:
    // The report as it may be handed out: redacted, if the user wants that.
    explicit OutcomeWindow(const Report& report, QWidget* parent = nullptr);
    ~OutcomeWindow() override;

private:
    void setTexts();
    void addCheck(const ReportCheck& check);
    QLabel* addLabel(const QString& text, int column, int span);
    void copy();
    void chooseFile();
    void save(const QString& path);
    void openReport();
    void showPage(const QString& page, const QString& problem);
    void tell(const char* textId, const QString& path = {});

    std::unique_ptr<Ui::OutcomeWindow> ui;
    QGridLayout* m_rows = nullptr;
    const Report m_report;
    QString m_page; // the report that was opened
    Platform::Mailbox m_mailbox;
};
