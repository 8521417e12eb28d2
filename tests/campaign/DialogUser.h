// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/Step.h"

#include <QElapsedTimer>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <functional>
#include <optional>

class DialogView;
class QDialog;
class QWidget;

// Clicks through the dialog, driven by a timer. It answers yes if that can be clicked, else no, and
// closes the dialog at the end. Knows nothing of the engine, so it works in the program itself,
// too.
class DialogUser : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(DialogUser)

public:
    // Called once for each step, when its page is shown and before it is answered. May run the
    // event loop.
    using Hook = std::function<void(Step step, const DialogView& view)>;
    // Called when an answer is clicked: the check as in the report, and the word.
    using Answered = std::function<void(const char* check, const char* answer)>;

    DialogUser(Hook hook, Answered answered);
    ~DialogUser() override;

    QString problem() const { return m_problem; } // empty, or where it got stuck

private:
    void look();
    void meet(QWidget* window);
    void visit(QDialog* dialog);
    void act(const DialogView& view, Step step);
    void leaveNetwork(const DialogView& view);
    void answerSpeaker(const DialogView& view);
    void answerMicrophone(const DialogView& view);
    bool answer(const DialogView& view, const char* check, const char* yes, const char* no);
    static std::optional<Step> stepOf(const DialogView& view);

    Hook m_hook;
    Answered m_answered;
    QTimer m_timer;
    bool m_isBusy = false;
    std::optional<Step> m_step; // the one that was seen last
    QPointer<QDialog> m_dialog;
    QElapsedTimer m_sinceStep;
    QMap<QByteArray, bool> m_isAnswered;
    QString m_problem;
};
