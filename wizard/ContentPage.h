// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QWidget>
#include <memory>

namespace Ui {
class ContentPage;
}
class ClickColorLabel;

// The wizard's frame: the step labels, the check pages, the result page, and the rules for leaving.
// It deletes itself when it closes. GUI thread only.
class ContentPage : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(ContentPage)

public:
    explicit ContentPage(QWidget* parent = nullptr);
    ~ContentPage() override;

    // Shows the page of the step label and records the steps before it.
    void selectStep(QWidget* stepLabel);
    void showResult();
    void onResultDone();

    // The rule of closing for a host that asks first: reports and asks as closing does.
    bool canClose();

Q_SIGNALS:
    void closeDialog(); // after the frame closed itself because the engine ended the session

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void setupStepLabels();
    void connectSteps();
    void forceClose();
    bool mayClose(const QString& managerName);
    bool confirmEarlyClose();

    bool m_forceClose = false;
    QPoint m_anchorPos;
    std::unique_ptr<Ui::ContentPage> ui;
};
