// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/MicrophonePage.h"

#include "pages/DeviceChecks.h"
#include "ui_MicrophonePage.h"
#include "widgets/LumToolTip.h"
#include "widgets/TipsWidget.h"
#include "widgets/Volume.h"

#include <CommEngine/HardwareMgrInterface.h>
#include <CommEngine/SystemTestingResult.h>
#include <LumMedia/MicphoneRecorder.h>
#include <LumUtility/LumColor.h>

#include <QDebug>
#include <QProgressBar>
#include <QStackedLayout>
#include <QTimerEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int CountdownIntervalMs = 1000;
constexpr int CountdownStart = 5;
constexpr int HandIntervalMs = 300;
constexpr int RecordKey = Qt::ALT + Qt::Key_R;
constexpr int InitialVolume = 100;
constexpr int RecordFontPixels = 12;
constexpr int NoisyAbovePercent = 100;
constexpr double FullLevel = 1.0;
constexpr double MaxSystemVolumePercent = 1000.0;
constexpr QPoint NoisyTipOffset(10, 9);

// What a device reports isn't trusted to be a number, or one that fits.
double bounded(double value, double maximum)
{
    return std::isnan(value) ? 0.0 : std::clamp(value, 0.0, maximum);
}

// Unlike QString::arg, it takes a translation without a place for the value silently.
QString filledIn(const char* id, const QString& value)
{
    return qtTrId(id).replace(QLatin1String("%1"), value);
}

} // namespace

bool MicrophonePage::s_handSmall = true;

MicrophonePage::MicrophonePage(QWidget* parent)
    : CheckPage(parent),
      ui(std::make_unique<Ui::MicrophonePage>()),
      m_countdown(CountdownStart),
      m_recorder(std::make_unique<MicphoneRecorder>(nullptr)),
      m_microphone(Channel::Local, false, nullptr)
{
    ui->setupUi(this);
    setTexts();
    DeviceChecks::setUpComboBox(ui->cb_ad_input_name, this);
    DeviceChecks::setUpPopup(ui->cb_ad_input_name);
    m_volume = new Volume(this, InitialVolume, true);
    ui->micVolumeLayout->addWidget(m_volume);
    ui->micVolumeLayout->addStretch();
    addLevelBars();
    nameControls();
    connect(m_volume, &Volume::setVolumeByUser, this, &MicrophonePage::onUserVolume);
    connect(ui->Btn_Mic_Yes, &QPushButton::clicked, this, [this] { finishCheck(true); });
    connect(ui->Btn_Mic_No, &QPushButton::clicked, this, [this] { finishCheck(false); });
    addTips();
    connectMicrophone();
    refreshDeviceList();
    onCurrentMicChanged();
    refreshVolume();

    ui->Btn_Record->setFocusPolicy(Qt::NoFocus);
    ui->label_Record->setText(qtTrId("ID_Record"));
    QFont recordFont = ui->label_Record->font();
    recordFont.setPixelSize(RecordFontPixels); // the frame's own is too high for the label
    ui->label_Record->setFont(recordFont);
    m_handLabel = DeviceChecks::createHand(ui->Frame_Record);
    m_handTimerId = startTimer(HandIntervalMs, Qt::CoarseTimer);
    connect(ui->Btn_Record, &QPushButton::clicked, this, &MicrophonePage::on_recordButton_clicked);
}

// The microphone outlives the form, and may still tell news when it is closed.
MicrophonePage::~MicrophonePage()
{
    m_microphone.disconnect(this);
    m_disabledTip.reset();
    m_noisyTip.reset();
    m_recorder.reset();
    ui.reset();
}

bool MicrophonePage::isPassed() const
{
    return !m_untested && m_userConfirmed && m_microphoneWorks && !m_noMicrophone &&
           !m_microphoneDisabled;
}

void MicrophonePage::saveResult()
{
    SystemTestingResult::writeMicrophoneStateFromUser(
        DeviceChecks::answerCode(isTested(), m_userConfirmed));
    SystemTestingResult::writeMicrophoneState(DeviceChecks::stateCode(m_microphoneWorks));
    SystemTestingResult::writeCurrentMicrophone(m_currentMicrophoneName);
}

void MicrophonePage::updateDeviceState()
{
    m_noMicrophone = true;
    m_microphoneDisabled = true;
    m_microphoneWorks = false;
    m_currentMicrophoneName = m_microphone.getNoneDeviceText();
    if (m_microphone.getDeviceList().empty()) {
        return;
    }
    m_noMicrophone = false;
    if (m_microphone) {
        m_microphoneDisabled = false;
        m_currentMicrophoneName = m_microphone.getCurrentDeviceName();
        m_microphoneWorks = m_microphone.workWell();
    }
}

std::vector<QString> MicrophonePage::problemList() const
{
    if (m_untested) {
        return {qtTrId("ID_CameraPage_NotDetected")};
    }
    if (m_noMicrophone) {
        return {qtTrId("ID_MicrophonePage_NoMicrophoneWasDetected")};
    }
    if (m_microphoneDisabled) {
        return {qtTrId("ID_MicrophonePage_MicrophoneDisabled")};
    }
    std::vector<QString> problems;
    if (!m_microphoneWorks) {
        problems.push_back(qtTrId("ID_MicrophonePage_NoVoiceWasRecorded"));
    }
    if (!m_userConfirmed) {
        problems.push_back(qtTrId("ID_MicrophonePage_ChoseNo"));
    }
    return problems;
}

void MicrophonePage::timerEvent(QTimerEvent* event)
{
    CheckPage::timerEvent(event);
    if (event->timerId() == m_recordTimerId) {
        onCountdownTick();
    } else if (event->timerId() == m_handTimerId) {
        DeviceChecks::showHand(m_handLabel, s_handSmall);
        s_handSmall = !s_handSmall;
    }
}

void MicrophonePage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_microphone.openMicrophone();
    m_microphone.enableListenSelf(true);
    if (!m_microphone) {
        showDisabledTip();
    }
    refreshVolume();
    refreshWorkState();
    DeviceChecks::placeHand(m_handLabel, ui->Btn_Record);
}

void MicrophonePage::hideEvent(QHideEvent* event)
{
    CheckPage::hideEvent(event); // reads the state while the microphone is still open
    if (m_recordTimerId != 0) {
        stopRecording();
    }
    ui->Btn_Record->setEnabled(true);
    ui->label_Record->setText(qtTrId("ID_Record"));
    m_microphone.enableListenSelf(false);
    m_microphone.closeMicrophone();
    if (m_disabledTip) {
        m_disabledTip->hide();
    }
}

void MicrophonePage::on_cb_ad_input_name_currentIndexChanged(int index)
{
    const QString id = ui->cb_ad_input_name->itemData(index, Qt::UserRole).toString();
    m_microphone.setCurrentDevice(id, true, false);
}

// Nothing is recorded: the user checks the bar and the voice that is played back.
void MicrophonePage::on_recordButton_clicked()
{
    ui->Btn_Record->setEnabled(false);
    setBlinkButton(nullptr);
    ui->label_Record->setText(qtTrId("ID_MicrophonePage_Recording"));
    m_countdown = CountdownStart;
    killTimer(m_recordTimerId); // started over, it leaves no other one behind
    m_recordTimerId = startTimer(CountdownIntervalMs, Qt::CoarseTimer);
    m_handLabel->hide();
    ui->Btn_Mic_Yes->setEnabled(false);
    ui->Btn_Mic_No->setEnabled(false);
}

void MicrophonePage::setTexts()
{
    ui->label_2->setText(filledIn("ID_MicrophonePage_MicrophoneTest", QStringLiteral("sss")));
    ui->label_2->setText(qtTrId("ID_MicrophonePage_MicrophoneTest"));
    ui->label->setText(qtTrId("ID_Volume"));
    ui->Btn_Mic_No->setText(qtTrId("ID_MicrophonePage_CanNotHearOrSee"));
    ui->label_select_mic->setText(qtTrId("ID_Microphone"));
    ui->Btn_Mic_Yes->setText(qtTrId("ID_MicrophonePage_CanHearOrSee"));
}

// Two bars on top of each other: the one behind draws the empty segments, the one in front the lit
// ones.
void MicrophonePage::addLevelBars()
{
    auto* bars = new QStackedLayout(ui->w_intensity);
    bars->setStackingMode(QStackedLayout::StackAll);
    auto* back = new QProgressBar;
    back->setTextVisible(false);
    back->setValue(100);
    back->setStyleSheet(QStringLiteral(
        "QProgressBar {border: 0px;}QProgressBar::chunk{width: 4px;margin-right: 6px;"
        "background-image: url(:/Kestrel/Images/chunk_back.png);}"));
    bars->addWidget(back);
    m_levelBar = new QProgressBar;
    m_levelBar->setTextVisible(false);
    m_levelBar->setStyleSheet(QStringLiteral(
        "QProgressBar {border: 0px; background-color: transparent;}QProgressBar::chunk{width: "
        "4px;margin-right: 6px;background-image: url(:/Kestrel/Images/chunk_front.png);}"));
    bars->addWidget(m_levelBar);
    bars->setCurrentWidget(m_levelBar);
}

// For a screen reader. The record button never has the focus, so that it gets a key of its own.
void MicrophonePage::nameControls()
{
    DeviceChecks::setCaption(ui->cb_ad_input_name, ui->label_select_mic);
    m_volume->setCaption(ui->label->text());
    ui->Btn_Record->setAccessibleName(qtTrId("ID_Record"));
    ui->Btn_Record->setAccessibleDescription(ui->label_2->text());
    ui->Btn_Record->setShortcut(RecordKey);
    m_levelBar->setAccessibleName(ui->label_select_mic->text());
}

void MicrophonePage::addTips()
{
    const QStringList lines{qtTrId("ID_CameraPage_1"), qtTrId("ID_MicrophonePage_2"),
                            qtTrId("ID_MicrophonePage_3"), qtTrId("ID_MicrophonePage_4"),
                            qtTrId("ID_CameraPage_5")};
    auto* tips =
        new TipsWidget(qtTrId("ID_MicrophonePage_ClickHere"), lines.join(QLatin1Char('\n')), this);
    ui->verticalLayout->insertLayout(ui->verticalLayout->count() - 1, tips);
    DeviceChecks::setTabOrder(ui->cb_ad_input_name, {m_volume->slider(), tips->button(),
                                                     ui->Btn_Mic_Yes, ui->Btn_Mic_No});
}

void MicrophonePage::connectMicrophone()
{
    connect(&m_microphone, &LumMicrophone::deviceListChanged, this,
            &MicrophonePage::refreshDeviceList);
    connect(&m_microphone, &LumMicrophone::currentMicChanged, this,
            &MicrophonePage::onCurrentMicChanged);
    connect(&m_microphone, &LumMicrophone::intensity, this,
            [this](double level) { setLevel(static_cast<float>(bounded(level, FullLevel))); });
    connect(&m_microphone, &LumMicrophone::volumeChanged, this, &MicrophonePage::refreshVolume);
    connect(&m_microphone, &LumMicrophone::infoChanged, this, &MicrophonePage::refreshVolume);
    connect(&m_microphone, &LumMicrophone::workStateChanged, this,
            &MicrophonePage::refreshWorkState);
    connect(&m_microphone, &LumMicrophone::systemMicrophoneVolume, this,
            &MicrophonePage::onSystemVolume);
}

// The form has connected the box by name as well; that connection goes with the first ignoring.
void MicrophonePage::followComboBox()
{
    connect(ui->cb_ad_input_name, SIGNAL(currentIndexChanged(int)), this,
            SLOT(on_cb_ad_input_name_currentIndexChanged(int)));
}

void MicrophonePage::ignoreComboBox()
{
    disconnect(ui->cb_ad_input_name, SIGNAL(currentIndexChanged(int)), this,
               SLOT(on_cb_ad_input_name_currentIndexChanged(int)));
}

// The microphone is asked before the box is touched, here and below: it may tell news from within
// each call, and those fill the box, too.
void MicrophonePage::refreshDeviceList()
{
    const auto list = m_microphone.getDeviceList();
    const QString noneText = m_microphone.getNoneDeviceText();
    ignoreComboBox();
    ui->cb_ad_input_name->hidePopup();
    ui->cb_ad_input_name->clear();
    for (const auto& [id, device] : list) {
        ui->cb_ad_input_name->addItem(device.name, QVariant(id));
    }
    ui->cb_ad_input_name->addItem(noneText, QVariant(HardwareMgrInterface::NoneDevice));
    followComboBox();
}

void MicrophonePage::onCurrentMicChanged()
{
    const QString id = m_microphone.getCurrentDevice();
    ignoreComboBox();
    selectComboData(ui->cb_ad_input_name, id);
    followComboBox();
    refreshWorkState();
    ui->stackedWidget->setCurrentWidget(m_microphone ? ui->micPage : ui->noMicPage);
}

void MicrophonePage::refreshVolume()
{
    m_volume->setVisible(m_microphone.supportAdjustVolume());
    const int volume = m_microphone.getVolume();
    m_volume->setVolume(volume);
    updateNoisyTip(volume);
}

void MicrophonePage::onUserVolume(int value)
{
    m_microphone.setVolume(value);
    updateNoisyTip(value);
}

void MicrophonePage::onSystemVolume(float percent)
{
    qInfo().nospace() << "OSVolume_Mic: " << percent;
    m_volume->setVolume(
        static_cast<int>(bounded(static_cast<double>(percent), MaxSystemVolumePercent)));
}

void MicrophonePage::updateNoisyTip(int volume)
{
    showNoisyTip(volume > NoisyAbovePercent);
}

void MicrophonePage::setLevel(float intensity)
{
    m_levelBar->setValue(static_cast<int>(100.0F * intensity));
}

void MicrophonePage::refreshWorkState()
{
    if (!m_microphone) {
        ui->Btn_Mic_Yes->hide();
        ui->Btn_Mic_No->setEnabled(true);
        showDisabledTip();
        showNoisyTip(false);
        return;
    }
    ui->Btn_Mic_Yes->show();
    if (!m_microphone.workWell()) {
        // Only the end of a countdown enables them again.
        ui->Btn_Mic_Yes->setEnabled(false);
        ui->Btn_Mic_No->setEnabled(false);
    }
}

void MicrophonePage::showDisabledTip()
{
    if (m_disabledTip) {
        m_disabledTip->hide();
    }
    if (!isVisible()) {
        return;
    }
    if (!m_disabledTip) {
        m_disabledTip = std::make_unique<LumToolTip>(
            qtTrId("ID_MicrophonePage_DisabledWillMakeMicrophoneUnusable"), false, nullptr,
            Qt::AlignLeft, false, LumColor::Red);
    }
    DeviceChecks::placeAbove(m_disabledTip.get(), ui->cb_ad_input_name);
    m_disabledTip->setVisible(!m_microphone.getDeviceList().empty());
}

void MicrophonePage::showNoisyTip(bool show)
{
    if (!m_volume->isVisible()) {
        if (m_noisyTip) {
            m_noisyTip->hide();
        }
        return;
    }
    if (!m_noisyTip) {
        m_noisyTip = std::make_unique<LumToolTip>(qtTrId("ID_MicrophonePage_MayNoisy"), false, this,
                                                  Qt::AlignCenter, false, LumColor::Red);
    }
    m_noisyTip->adjustSize();
    const QPoint corner = m_volume->mapTo(this, QPoint(0, 0));
    m_noisyTip->setGeometry(corner.x() + NoisyTipOffset.x(),
                            corner.y() - m_noisyTip->height() + NoisyTipOffset.y(),
                            m_noisyTip->width(), m_noisyTip->height());
    m_noisyTip->setVisible(show);
}

void MicrophonePage::onCountdownTick()
{
    if (m_countdown != 0) {
        ui->label_Record->setText(filledIn("ID_MicrophonePage_OfS", QString::number(m_countdown)));
        --m_countdown;
        return;
    }
    stopRecording();
    ui->Btn_Record->setEnabled(true);
    ui->Btn_Mic_Yes->setEnabled(true);
    ui->Btn_Mic_No->setEnabled(true);
}

void MicrophonePage::stopRecording()
{
    setLevel(0.0F);
    ui->Btn_Record->setEnabled(true);
    ui->label_Record->setText(qtTrId("ID_MicrophonePage_Again"));
    m_recorder->stopRecorder();
    killTimer(m_recordTimerId);
    m_recordTimerId = 0;
}
