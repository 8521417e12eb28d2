// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "wizard/ContentPage.h"

#include "ui_ContentPage.h"

#include <CommEngine/HardwareMgr.h>
#include <CoreEngine/CoreEngine.h>
#include <LumUtility/LumSettings.h>
#include <LumUtility/LumUtils.h>
#include <LumWidgets/LumMessageBox.h>

#include <QCloseEvent>
#include <QDebug>

namespace {

constexpr int FontPixelSize = 12;
constexpr int ReportAllAnswered = 3;
constexpr int ReportLeftEarly = 7;

const QColor StepTextColor(35, 35, 35, 204);

const QLatin1String
    CurrentStepStyle("QLabel{background:#F0F0F0;border-radius:4px;padding-left:10px;}");
const QLatin1String
    OtherStepStyle("QLabel{background:#FFFFFF;border-radius:4px;padding-left:10px;}");
const QLatin1String
    InitialCurrentStepStyle("QLabel{background:#F0F0F0; color: rgba(35, 35, 35, 0.8); "
                            "border-radius:4px;padding-left:10px;}");
const QLatin1String
    InitialOtherStepStyle("QLabel{background:#FFFFFF; color: rgba(35, 35, 35, 0.8); "
                          "border-radius:4px;padding-left:10px;}");

// A new style sheet takes back the text colour, so that is set last.
void showPlain(ClickColorLabel* label, const QString& style)
{
    label->setStyleSheet(style);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, StepTextColor);
    label->setPalette(palette);
    label->setAccessibleDescription(QString());
}

void showVerdict(ClickColorLabel* label, bool passed)
{
    label->setResultColor(passed);
    label->setAccessibleDescription(passed ? qtTrId("ID_CheckResultPage_Normal")
                                           : qtTrId("ID_CheckResultPage_Abnormal"));
}

bool isReachedByTab(const QWidget* widget, const QWidget* page)
{
    return page->isAncestorOf(widget) && widget->window() == page->window() &&
           (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !widget->focusProxy() &&
           widget->isEnabled() && widget->isVisibleTo(page);
}

void focusFirstControl(QWidget* page)
{
    for (QWidget* widget = page->nextInFocusChain(); widget != page;
         widget = widget->nextInFocusChain()) {
        if (isReachedByTab(widget, page)) {
            widget->setFocus();
            return;
        }
    }
}

} // namespace

// Other flags would make Qt apply all style sheets again, so the frame has them before it has
// widgets.
ContentPage::ContentPage(QWidget* parent)
    : QWidget(parent, Qt::FramelessWindowHint), ui(std::make_unique<Ui::ContentPage>())
{
    QFont font;
    font.setPixelSize(FontPixelSize);
    setFont(font);
    ui->setupUi(this);
    ui->checkArea->addWidget(ui->checkPage);
    ui->checkArea->addWidget(ui->resultPage);
    setObjectName(QStringLiteral("selfcheckContentPage"));
    setStyleSheet(QStringLiteral("QWidget#selfcheckContentPage{border-bottom-left-radius: 6px; "
                                 "border-bottom-right-radius: 6px;}"));
    setAttribute(Qt::WA_DeleteOnClose, true);

    // The forms fix the places. In a language that is written from right to left they can't be
    // mirrored, so nothing on the pages is; the texts themselves run as their letters do.
    setLayoutDirection(Qt::LeftToRight);

    setupStepLabels();
    connectSteps();
    setupKeyboard();
    ui->resultPage->setPages(ui->networkPage, ui->cameraPage, ui->headsetPage, ui->microphonePage);
    connect(ui->resultPage, &CheckPage::complete, this, &ContentPage::onResultDone);
    ui->stackedWidget->setCurrentWidget(ui->networkPage);

    auto* core = LumEngine::CoreEngine::instance();
    connect(core, &LumEngine::CoreEngine::signalBasicBreakdown, this, &ContentPage::forceClose);
    connect(core, &LumEngine::CoreEngine::signalKickout, this, &ContentPage::forceClose);
}

ContentPage::~ContentPage() = default;

void ContentPage::selectStep(QWidget* stepLabel)
{
    for (ClickColorLabel* label :
         {ui->label_SystemCheck, ui->label_CameraCheck, ui->label_SoundCheck, ui->label_MicCheck}) {
        showPlain(label, OtherStepStyle);
    }
    if (stepLabel == ui->label_SystemCheck) {
        showPlain(ui->label_SystemCheck, CurrentStepStyle);
        showStepPage(ui->networkPage);
    } else if (stepLabel == ui->label_CameraCheck) {
        showPlain(ui->label_CameraCheck, CurrentStepStyle);
        showStepPage(ui->cameraPage);
        showVerdict(ui->label_SystemCheck, ui->networkPage->isPassed());
        ui->networkPage->saveResult();
    } else if (stepLabel == ui->label_SoundCheck) {
        showPlain(ui->label_SoundCheck, CurrentStepStyle);
        showStepPage(ui->headsetPage);
        showVerdict(ui->label_SystemCheck, ui->networkPage->isPassed());
        ui->networkPage->saveResult();
        showVerdict(ui->label_CameraCheck, ui->cameraPage->isPassed());
        ui->cameraPage->saveResult();
    } else if (stepLabel == ui->label_MicCheck) {
        showPlain(ui->label_MicCheck, CurrentStepStyle);
        showStepPage(ui->microphonePage);
        ui->networkPage->saveResult();
        showVerdict(ui->label_SystemCheck, ui->networkPage->isPassed());
        ui->cameraPage->saveResult();
        showVerdict(ui->label_CameraCheck, ui->cameraPage->isPassed());
        ui->headsetPage->saveResult();
        showVerdict(ui->label_SoundCheck, ui->headsetPage->isPassed());
    }
}

void ContentPage::showResult()
{
    ui->checkArea->setCurrentWidget(ui->resultPage);
    focusFirstControl(ui->resultPage);
    ui->microphonePage->saveResult();
    showVerdict(ui->label_MicCheck, ui->microphonePage->isPassed());
}

void ContentPage::onResultDone()
{
    if (ui->resultPage->isRedetect()) {
        ui->checkArea->setCurrentWidget(ui->checkPage);
        focusFirstControl(ui->stackedWidget->currentWidget());
    } else {
        close();
    }
}

bool ContentPage::canClose()
{
    return mayClose(QStringLiteral("isCanCloseFunc"));
}

void ContentPage::closeEvent(QCloseEvent* event)
{
    const QPointer<ContentPage> self(this);
    const bool may = mayClose(QStringLiteral("ContentPage::closeEvent"));
    if (!self) {
        return; // destroyed while the question was open
    }
    if (!may) {
        event->ignore();
    }
}

void ContentPage::setupStepLabels()
{
    ui->label_SystemCheck->setStyleSheet(InitialCurrentStepStyle);
    ui->label_CameraCheck->setStyleSheet(InitialOtherStepStyle);
    ui->label_SoundCheck->setStyleSheet(InitialOtherStepStyle);
    ui->label_MicCheck->setStyleSheet(InitialOtherStepStyle);

    ui->label_SystemCheck->setText(qtTrId("ID_CheckResultPage_System"));
    ui->label_CameraCheck->setText(qtTrId("ID_Camera_Check"));
    ui->label_SoundCheck->setText(qtTrId("ID_CheckResultPage_Headphone"));
    ui->label_MicCheck->setText(qtTrId("ID_Microphone_Check"));
}

void ContentPage::connectSteps()
{
    for (ClickColorLabel* label :
         {ui->label_SystemCheck, ui->label_CameraCheck, ui->label_SoundCheck, ui->label_MicCheck}) {
        connect(label, &ClickColorLabel::clicked, this, [this, label] { selectStep(label); });
    }
    connect(ui->networkPage, &CheckPage::complete, ui->label_CameraCheck,
            &ClickColorLabel::clicked);
    connect(ui->cameraPage, &CheckPage::complete, ui->label_SoundCheck, &ClickColorLabel::clicked);
    connect(ui->headsetPage, &CheckPage::complete, ui->label_MicCheck, &ClickColorLabel::clicked);
    connect(ui->microphonePage, &CheckPage::complete, this, &ContentPage::showResult);
}

// The step labels come after the page's own controls.
void ContentPage::setupKeyboard()
{
    QWidget* previous = nullptr;
    for (ClickColorLabel* label :
         {ui->label_SystemCheck, ui->label_CameraCheck, ui->label_SoundCheck, ui->label_MicCheck}) {
        label->setFocusPolicy(Qt::TabFocus);
        if (previous) {
            setTabOrder(previous, label);
        }
        previous = label;
    }
}

void ContentPage::showStepPage(QWidget* page)
{
    ui->stackedWidget->setCurrentWidget(page);
    focusFirstControl(page);
}

void ContentPage::forceClose()
{
    m_forceClose = true;
    const QPointer<ContentPage> self(this);
    if (m_openQuestions > 0) {
        // The engine's question may stand on the stack below the frame: the frame outlives it.
        setAttribute(Qt::WA_DeleteOnClose, false);
    }
    const bool isVetoed = !close();
    // Qt ignores close() while a close is under way, as it is while that close asks its question.
    if (self && !isVetoed && !isHidden()) {
        leaveShownPage();
        if (self) {
            hide();
        }
    }
    if (self && m_openQuestions > 0) {
        closeQuestionWindows();
    }
    if (self) {
        m_isGone = !isVetoed;
        Q_EMIT closeDialog();
    }
}

bool ContentPage::mayClose(const QString& managerName)
{
    // Every call of the engine may end the session, and whoever hears of that may delete the frame.
    const QPointer<ContentPage> self(this);
    HardwareMgr hardwareMgr(managerName);
    if (self && !m_forceClose) {
        if (isEveryPageTested()) {
            LumSettings::instance(QString())->setSetting(QStringLiteral("ShowSystemCheck"),
                                                         QVariant(false));
            if (self && !m_forceClose) {
                hardwareMgr.postHardwardInfoToServer(ReportAllAnswered);
            }
        } else {
            const bool isConfirmed = confirmEarlyClose();
            if (self && !m_forceClose) {
                if (!isConfirmed) {
                    return false;
                }
                hardwareMgr.postHardwardInfoToServer(ReportLeftEarly);
            }
        }
    }
    if (self) {
        leaveShownPage();
    }
    return true;
}

bool ContentPage::isEveryPageTested() const
{
    return ui->networkPage->isTested() && ui->cameraPage->isTested() &&
           ui->headsetPage->isTested() && ui->microphonePage->isTested();
}

void ContentPage::leaveShownPage()
{
    if (ui->checkArea->currentWidget() == ui->checkPage) {
        ui->stackedWidget->currentWidget()->hide();
    }
}

bool ContentPage::confirmEarlyClose()
{
    const QPointer<ContentPage> self(this);
    const QString title = LumUtils::getMessageBoxTitle(QMessageBox::Question);
    const QString text = qtTrId("ID_ContentPage_NotFinishedIfLeave");
    qInfo().noquote() << title << text;
    if (!self || m_forceClose) {
        return false;
    }
    if (m_openQuestions == 0) {
        m_windowsBefore = windowsBelow();
    }
    ++m_openQuestions;
    const QMessageBox::StandardButton answer = LumMessageBox::question(
        this, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    if (self) {
        questionAnswered();
    }
    qInfo() << answer;
    return answer == QMessageBox::Yes;
}

void ContentPage::questionAnswered()
{
    --m_openQuestions;
    if (m_openQuestions > 0 || !m_forceClose) {
        return;
    }
    setAttribute(Qt::WA_DeleteOnClose);
    if (m_isGone) {
        // For a host that asked first: closing would do it now. Queued, so that the deletion
        // belongs to the event loop that runs next, wherever the host asked.
        QMetaObject::invokeMethod(this, &QObject::deleteLater, Qt::QueuedConnection);
    }
}

QVector<QPointer<QWidget>> ContentPage::windowsBelow() const
{
    QVector<QPointer<QWidget>> windows;
    const QList<QWidget*> all = window()->findChildren<QWidget*>();
    for (QWidget* widget : all) {
        if (widget->isWindow() && widget->isVisible()) {
            windows.append(widget);
        }
    }
    return windows;
}

void ContentPage::closeQuestionWindows()
{
    const QVector<QPointer<QWidget>> before = m_windowsBefore;
    const QVector<QPointer<QWidget>> windows = windowsBelow();
    for (const QPointer<QWidget>& window : windows) {
        if (window && !before.contains(window)) {
            window->close();
            if (window) {
                window->hide(); // a box without a way to say no doesn't close
            }
        }
    }
}
