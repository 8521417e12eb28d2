// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QPointer>
#include <QVector>
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

    // The rule of closing for a host that asks first: reports and asks as closing does. If the
    // engine ends the session meanwhile, the answer is yes, and the frame closes without the host.
    bool canClose();

Q_SIGNALS:
    void closeDialog(); // the frame has closed itself because the engine ended the session

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void setupStepLabels();
    void connectSteps();
    void setupKeyboard();
    void showStepPage(QWidget* page);
    void forceClose();
    bool mayClose(const QString& managerName);
    bool isEveryPageTested() const;
    void leaveShownPage();
    bool confirmEarlyClose();
    void questionAnswered();
    QVector<QPointer<QWidget>> windowsBelow() const; // those that are visible
    void closeQuestionWindows();

    bool m_forceClose = false;
    QPoint m_anchorPos;
    std::unique_ptr<Ui::ContentPage> ui;
    int m_openQuestions = 0;
    bool m_isGone = false;                      // closed by an event of the engine
    QVector<QPointer<QWidget>> m_windowsBefore; // what windowsBelow() gave before the question
};
