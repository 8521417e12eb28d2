// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/CameraPage.h"

#include "pages/DeviceChecks.h"
#include "ui_CameraPage.h"
#include "widgets/LumToolTip.h"
#include "widgets/TipsWidget.h"

#include <CommEngine/HardwareMgrInterface.h>
#include <CommEngine/SystemTestingResult.h>
#include <LumUtility/LumColor.h>

#include <QTimerEvent>

namespace {

constexpr int CountdownIntervalMs = 1000;
constexpr int CountdownStart = 3;

} // namespace

CameraPage::CameraPage(QWidget* parent)
    : CheckPage(parent),
      ui(std::make_unique<Ui::CameraPage>()),
      m_countdown(CountdownStart),
      m_camera(Channel::Local, false, this)
{
    ui->setupUi(this);
    setTexts();
    addTips();
    connect(ui->Btn_CanSee, &QPushButton::clicked, this, [this] { finishCheck(true); });
    connect(ui->Btn_Cant, &QPushButton::clicked, this, [this] { finishCheck(false); });
    DeviceChecks::setUpComboBox(ui->cb_vd_name, this);
    DeviceChecks::setCaption(ui->cb_vd_name, ui->label_select_camera);
    ui->f_video_player->attachCamera(&m_camera);
    ui->f_video_player->play();
    connect(&m_camera, &LumCamera::deviceListChanged, this, &CameraPage::refillCameraList);
    connect(&m_camera, &LumCamera::currentDeivceChanged, this, &CameraPage::onCurrentCameraChanged);
    connect(&m_camera, &LumCamera::workStateChanged, this, &CameraPage::updatePreview);
    refillCameraList();
    onCurrentCameraChanged();
    m_camera.setOutputSize(ui->f_video_player->size());
}

// The camera outlives the form, and may still tell news when it is closed.
CameraPage::~CameraPage()
{
    m_camera.disconnect(this);
    m_disabledTip.reset();
    ui.reset();
}

bool CameraPage::isPassed() const
{
    return !m_untested && m_userConfirmed && m_imageOk && !m_noDevice && !m_cameraOff;
}

void CameraPage::saveResult()
{
    SystemTestingResult::writeCameraStateFromUser(
        DeviceChecks::answerCode(isTested(), m_userConfirmed));
    SystemTestingResult::writeCameraState(DeviceChecks::stateCode(m_imageOk));
    SystemTestingResult::writeCurrentCamera(m_currentCameraName);
}

void CameraPage::updateDeviceState()
{
    m_noDevice = true;
    m_cameraOff = true;
    m_imageOk = false;
    m_currentCameraName = m_camera.getNoneDeviceText();
    if (m_camera.getDeviceList().empty()) {
        return;
    }
    m_noDevice = false;
    if (m_camera) {
        m_cameraOff = false;
        m_currentCameraName = m_camera.getCurrentDeviceName();
        m_imageOk = m_camera.workWell();
    }
}

std::vector<QString> CameraPage::problemList() const
{
    if (m_untested) {
        return {qtTrId("ID_CameraPage_NotDetected")};
    }
    if (m_noDevice) {
        return {qtTrId("ID_lumcamera_NoWebcamFound")};
    }
    if (m_cameraOff) {
        return {qtTrId("ID_CameraPage_CameraDisabled")};
    }
    std::vector<QString> problems;
    if (!m_imageOk) {
        problems.push_back(qtTrId("ID_CameraPage_NoCameraImageWasDetected"));
    }
    if (!m_userConfirmed) {
        problems.push_back(qtTrId("ID_CameraPage_choseNo"));
    }
    return problems;
}

void CameraPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_camera.startCapture(false);
    updatePreview();
}

void CameraPage::hideEvent(QHideEvent* event)
{
    CheckPage::hideEvent(event); // reads the state while the camera still runs
    m_camera.stopCapture();
    killTimer(m_countdownTimerId);
    m_countdownTimerId = 0;
}

void CameraPage::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_countdownTimerId) {
        --m_countdown;
        updateAnswerButtons();
    }
}

void CameraPage::onSelectCameraChanged(int index)
{
    const QString id = ui->cb_vd_name->itemData(index, Qt::UserRole).toString();
    m_camera.setCurrentDevice(id, false, true);
}

void CameraPage::setTexts()
{
    ui->Btn_Cant->setText(qtTrId("ID_CameraPage_CannotSee"));
    ui->Btn_CanSee->setText(qtTrId("ID_Next"));
    ui->label_select_camera->setText(qtTrId("ID_CameraPage_Camera"));
    ui->f_video_player->setAccessibleName(ui->label_select_camera->text());
}

void CameraPage::addTips()
{
    const QString text = qtTrId("ID_CameraPage_1") + QLatin1Char('\n') + qtTrId("ID_CameraPage_2") +
                         QLatin1Char('\n') + qtTrId("ID_CameraPage_3") + QLatin1Char('\n') +
                         qtTrId("ID_CameraPage_4") + QLatin1Char('\n') + qtTrId("ID_CameraPage_5");
    auto* tips = new TipsWidget(qtTrId("ID_CameraPage_ClickHere"), text, this);
    ui->verticalLayout->insertLayout(ui->verticalLayout->count() - 1, tips);
    DeviceChecks::setTabOrder(ui->cb_vd_name, {tips->button(), ui->Btn_CanSee, ui->Btn_Cant});
}

void CameraPage::followComboBox()
{
    connect(ui->cb_vd_name, SIGNAL(currentIndexChanged(int)), this,
            SLOT(onSelectCameraChanged(int)));
}

void CameraPage::ignoreComboBox()
{
    disconnect(ui->cb_vd_name, SIGNAL(currentIndexChanged(int)), this,
               SLOT(onSelectCameraChanged(int)));
}

// The camera is asked before the box is touched, here and below: it may tell news from within each
// call, and those fill the box, too.
void CameraPage::refillCameraList()
{
    const auto list = m_camera.getDeviceList();
    const QString noneText = m_camera.getNoneDeviceText();
    ignoreComboBox();
    ui->cb_vd_name->hidePopup();
    ui->cb_vd_name->clear();
    for (const auto& [id, name] : list) {
        ui->cb_vd_name->addItem(name, QVariant(id));
    }
    ui->cb_vd_name->addItem(noneText, QVariant(HardwareMgrInterface::NoneDevice));
    followComboBox();
}

void CameraPage::onCurrentCameraChanged()
{
    updatePreview();
    const QString id = m_camera.getCurrentDevice();
    ignoreComboBox();
    selectComboData(ui->cb_vd_name, id);
    followComboBox();
}

void CameraPage::updatePreview()
{
    if (m_camera) {
        ui->Btn_CanSee->show();
        ui->f_video_player->play();
        if (!m_camera.workWell()) {
            // An earlier timer keeps running, and its ticks are ignored: only this one counts.
            m_countdownTimerId = startTimer(CountdownIntervalMs);
            m_countdown = CountdownStart;
            ui->Btn_CanSee->setEnabled(false);
            ui->Btn_Cant->setEnabled(false);
        } else {
            m_countdown = 0;
        }
        updateAnswerButtons();
    } else {
        ui->Btn_CanSee->hide();
        ui->f_video_player->stop();
        m_countdown = 0;
        updateAnswerButtons();
        showDisabledTip();
    }
}

void CameraPage::updateAnswerButtons()
{
    QString yes = qtTrId("ID_CameraPage_Yes");
    QString no = qtTrId("ID_CameraPage_No");
    const bool isLocked = m_countdown != 0;
    if (isLocked) {
        yes = (yes + QStringLiteral("(%1)")).arg(m_countdown);
        no = (no + QStringLiteral("(%1)")).arg(m_countdown);
    }
    ui->Btn_CanSee->setText(yes);
    ui->Btn_Cant->setText(no);
    ui->Btn_CanSee->setEnabled(!isLocked);
    ui->Btn_Cant->setEnabled(!isLocked);
    if (!isLocked) {
        killTimer(m_countdownTimerId);
        m_countdownTimerId = 0;
    }
}

void CameraPage::showDisabledTip()
{
    if (m_disabledTip) {
        m_disabledTip->hide();
    }
    if (!isVisible()) {
        return;
    }
    if (!m_disabledTip) {
        m_disabledTip =
            std::make_unique<LumToolTip>(qtTrId("ID_CameraPage_DisabledWillMakeCameraUnusable"),
                                         false, nullptr, Qt::AlignLeft, false, LumColor::Red);
    }
    DeviceChecks::placeAbove(m_disabledTip.get(), ui->cb_vd_name);
    m_disabledTip->setVisible(!m_camera.getDeviceList().empty());
}
