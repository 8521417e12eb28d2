// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/DialogUser.h"

#include "host/tour/DialogView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTableWidget>
#include <QtTest>

namespace {

constexpr int PollMs = 10;
constexpr int StepTimeoutMs = 20000;
constexpr int MeasureTimeoutMs = 3000; // then it goes on without figures

bool click(const DialogView& view, const char* name)
{
    auto* const button = view.find<QAbstractButton>(name);
    if (!button || !button->isEnabled()) {
        return false;
    }
    QTest::mouseClick(button, Qt::LeftButton);
    return true;
}

} // namespace

DialogUser::DialogUser(Hook hook, Answered answered)
    : m_hook(std::move(hook)), m_answered(std::move(answered))
{
    connect(&m_timer, &QTimer::timeout, this, &DialogUser::look);
    m_timer.start(PollMs);
}

DialogUser::~DialogUser() = default;

void DialogUser::look()
{
    QWidget* const window = QApplication::activeModalWidget();
    if (m_isBusy || !window || !window->isVisible()) {
        return;
    }
    m_isBusy = true;
    meet(window);
    m_isBusy = false;
}

void DialogUser::meet(QWidget* window)
{
    if (auto* const box = qobject_cast<QMessageBox*>(window)) {
        QMetaObject::invokeMethod(box->button(QMessageBox::Yes), "click", Qt::QueuedConnection);
    } else if (window->inherits("OutcomeWindow")) {
        window->close();
    } else if (auto* const dialog = qobject_cast<QDialog*>(window)) {
        visit(dialog);
    }
}

void DialogUser::visit(QDialog* dialog)
{
    if (m_dialog != dialog) {
        m_dialog = dialog;
        m_step.reset();
        m_isAnswered.clear();
    }
    const DialogView view(dialog);
    const std::optional<Step> step = stepOf(view);
    if (!step) {
        return;
    }
    if (step != m_step) {
        m_step = step;
        m_hook(*step, view);
        m_sinceStep.start();
    }
    // The hook may have ended the session.
    if (m_dialog && m_dialog->isVisible() && stepOf(view) == step) {
        act(view, *step);
    }
    if (m_dialog && m_sinceStep.hasExpired(StepTimeoutMs)) {
        m_problem = QStringLiteral("step %1 can't be left").arg(static_cast<int>(*step));
        m_dialog->done(QDialog::Rejected);
    }
}

std::optional<Step> DialogUser::stepOf(const DialogView& view)
{
    if (view.find<QTableWidget>("tableWidget")) {
        return Step::Result;
    }
    if (view.find<QWidget>("cb_vd_name")) {
        return Step::Camera;
    }
    if (view.find<QWidget>("cb_ad_output_name") || view.find<QWidget>("noHeadsetPage")) {
        return Step::Speaker;
    }
    if (view.find<QWidget>("cb_ad_input_name") || view.find<QWidget>("noMicPage")) {
        return Step::Microphone;
    }
    return view.find<QLabel>("label_ND") ? std::optional(Step::Network) : std::nullopt;
}

void DialogUser::act(const DialogView& view, Step step)
{
    switch (step) {
    case Step::Network:
        leaveNetwork(view);
        break;
    case Step::Camera:
        answer(view, "camera", "Btn_CanSee", "Btn_Cant");
        break;
    case Step::Speaker:
        answerSpeaker(view);
        break;
    case Step::Microphone:
        answerMicrophone(view);
        break;
    case Step::Result:
        m_dialog->close();
        break;
    }
}

void DialogUser::leaveNetwork(const DialogView& view)
{
    const auto* const delay = view.find<QLabel>("label_ND");
    if (delay->text() != QLatin1String("- -") || m_sinceStep.hasExpired(MeasureTimeoutMs)) {
        click(view, "Btn_Next");
    }
}

void DialogUser::answerSpeaker(const DialogView& view)
{
    if (answer(view, "speaker", "Btn_CanHear", "Btn_CantListen")) {
        return;
    }
    if (!click(view, "item0")) {
        click(view, "tb_play_test_sound");
    }
}

void DialogUser::answerMicrophone(const DialogView& view)
{
    if (!answer(view, "microphone", "Btn_Mic_Yes", "Btn_Mic_No")) {
        click(view, "Btn_Record");
    }
}

bool DialogUser::answer(const DialogView& view, const char* check, const char* yes, const char* no)
{
    const bool isYes = view.isEnabled(yes);
    if (!isYes && !view.isEnabled(no)) {
        return false;
    }
    if (std::exchange(m_isAnswered[check], true)) {
        return true; // the next page comes from the event loop
    }
    click(view, isYes ? yes : no);
    m_answered(check, isYes ? "yes" : "no");
    return true;
}
