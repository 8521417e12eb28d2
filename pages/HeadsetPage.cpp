// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "pages/HeadsetPage.h"

#include "pages/DeviceChecks.h"
#include "ui_HeadsetPage.h"
#include "widgets/LumToolTip.h"
#include "widgets/TipsWidget.h"
#include "widgets/Volume.h"

#include <CommEngine/HardwareMgrInterface.h>
#include <CommEngine/SystemTestingResult.h>
#include <LumMedia/AudioPlayer.h>

#include <QCoreApplication>
#include <QTimerEvent>

#include <random>
#include <utility>

namespace {

constexpr int HandIntervalMs = 300;
constexpr int InitialVolume = 1;
constexpr int AnswerCount = 4;
constexpr auto TestSoundType = AudioPlayerType(3);
constexpr float FullVolume = 1.0F;
constexpr QPoint AnswerTipOffset(24, 6);
const QColor AnswerTipColor(QRgb(0x009265));

const QLatin1String SoundFolder("/html/sounds/speakerCheck/");

const QLatin1String AnswerStyle(
    "QRadioButton { font-size: 12px; color: #999999; }"
    "QRadioButton:checked { color: #009265; border: transparent; }"
    "QRadioButton::indicator::unchecked{image: url(:/im/images/chat/radiobutton_unchecked.svg);}"
    "QRadioButton::indicator::checked{image: url(:/im/images/chat/radiobutton_checked.svg);}"
    "QRadioButton::indicator::unchecked:disabled{image: "
    "url(:/im/images/chat/radiobutton_unchecked_disabled.svg);}"
    "QRadioButton::indicator::checked:disabled{image: "
    "url(:/im/images/chat/radiobutton_checked_disabled.svg);}");

struct Sound
{
    const char* nameId;
    QLatin1String file;
};

const Sound Sounds[] = {
    {"ID_HeadsetPage_Piano", QLatin1String("Piano.mp3")},
    {"ID_HeadsetPage_Seagull", QLatin1String("Seagull.mp3")},
    {"ID_HeadsetPage_Thunder", QLatin1String("Thunder.mp3")},
    {"ID_HeadsetPage_Doorbell", QLatin1String("Doorbell.mp3")},
    {"ID_HeadsetPage_Shutter", QLatin1String("Shutter.mp3")},
    {"ID_HeadsetPage_Bubble", QLatin1String("Bubble.mp3")},
    {"ID_HeadsetPage_Typing", QLatin1String("Typing.mp3")},
    {"ID_HeadsetPage_Saxophone", QLatin1String("Saxophone.mp3")},
};

int randomIndex(std::mt19937& generator, int count)
{
    return std::uniform_int_distribution<int>(0, count - 1)(generator);
}

bool s_handSmall = true; // which picture of the hand comes next, on whatever page

} // namespace

HeadsetPage::HeadsetPage(QWidget* parent)
    : CheckPage(parent), ui(std::make_unique<Ui::HeadsetPage>()), m_speaker(nullptr)
{
    ui->setupUi(this);
    setTexts();
    m_volume = new Volume(this, InitialVolume, false);
    ui->volumeLayout->addWidget(m_volume);
    ui->volumeLayout->addStretch();
    DeviceChecks::setUpComboBox(ui->cb_ad_output_name, this);
    DeviceChecks::setUpPopup(ui->cb_ad_output_name);
    nameControls();
    fillSoundFiles();
    setUpAnswerButtons();
    drawAnswers();
    addTips();
    connectSpeaker();
    onDeviceListChanged();
    onCurrentDeviceChanged(m_speaker.getCurrentDevice());

    ui->tb_play_test_sound->setImages(QStringLiteral(":/Kestrel/Images/play.svg"),
                                      QStringLiteral(":/Kestrel/Images/play_hover.svg"),
                                      QStringLiteral(":/Kestrel/Images/playing0.svg"),
                                      QStringLiteral(":/Kestrel/Images/playing1.svg"),
                                      QStringLiteral(":/Kestrel/Images/playing2.svg"));
    ui->label_Play->setText(qtTrId("ID_HeadsetPage_Play"));
    m_handLabel = DeviceChecks::createHand(ui->playArea);
    m_handTimerId = startTimer(HandIntervalMs, Qt::CoarseTimer);
    connect(ui->tb_play_test_sound, &QPushButton::clicked, this, &HeadsetPage::onTestLoudspeaker);
}

HeadsetPage::~HeadsetPage() = default;

bool HeadsetPage::isPassed() const
{
    return !m_untested && m_userConfirmed && !m_noSpeaker && m_answerCorrect;
}

void HeadsetPage::saveResult()
{
    SystemTestingResult::writeHeadphoneStateFromUser(
        DeviceChecks::answerCode(isTested(), m_userConfirmed));
    SystemTestingResult::writeHeadphoneState(DeviceChecks::stateCode(m_answerCorrect));
    SystemTestingResult::writeCurrentHeadphone(m_speakerName);
}

void HeadsetPage::updateDeviceState()
{
    m_noSpeaker = m_speaker.getCurrentDevice() == HardwareMgrInterface::NoneDevice;
    m_speakerName = m_noSpeaker
                        ? LumSpeaker::getNoneDeviceText(LumSpeaker::getDeviceList(false).empty())
                        : m_speaker.getDeviceName();
}

std::vector<QString> HeadsetPage::problemList() const
{
    if (m_untested) {
        return {qtTrId("ID_CameraPage_NotDetected")};
    }
    if (m_noSpeaker) {
        return {qtTrId("ID_hardwaremgrinterface_NoSpeakerFound")};
    }
    std::vector<QString> problems;
    if (!m_userConfirmed) {
        problems.push_back(qtTrId("ID_HeadsetPage_choseNo"));
    }
    if (!m_answerCorrect) {
        problems.push_back(qtTrId("ID_HeadsetPage_ChoseWrong"));
    }
    return problems;
}

// The hand's earlier timers keep running; only the newest moves it.
void HeadsetPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    DeviceChecks::placeHand(m_handLabel, ui->tb_play_test_sound);
    m_handTimerId = startTimer(HandIntervalMs, Qt::CoarseTimer);
}

void HeadsetPage::hideEvent(QHideEvent* event)
{
    CheckPage::hideEvent(event);
    if (!ui->tb_play_test_sound->isEnabled()) {
        endPlayer();
        ui->tb_play_test_sound->setEnabled(true);
    }
    if (m_answerTip) {
        m_answerTip->hide();
    }
    ui->label_Play->setText(qtTrId("ID_HeadsetPage_Play"));
    ui->Btn_CanHear->setEnabled(false);
    ui->Btn_CantListen->setEnabled(false);
    m_answerGroup.setExclusive(false);
    const QList<QAbstractButton*> buttons = m_answerGroup.buttons();
    for (QAbstractButton* button : buttons) {
        button->setEnabled(false);
        button->setChecked(false);
    }
    m_answerGroup.setExclusive(true);
}

void HeadsetPage::timerEvent(QTimerEvent* event)
{
    CheckPage::timerEvent(event);
    if (event->timerId() == m_handTimerId) {
        DeviceChecks::showHand(m_handLabel, s_handSmall);
        s_handSmall = !s_handSmall;
    }
}

void HeadsetPage::onTestLoudspeaker()
{
    m_handLabel->hide();
    ui->tb_play_test_sound->setEnabled(false);
    ui->tb_play_test_sound->update();
    ui->label_Play->setText(qtTrId("ID_HeadsetPage_Playing"));
    if (m_handTimerId != 0) {
        killTimer(m_handTimerId);
        m_handTimerId = 0;
    }
    if (m_firstPlay) {
        m_firstPlay = false;
    } else {
        drawAnswers();
    }
    setBlinkButton(nullptr);
    startPlayer();
    m_answerCorrect = false;
    enableAnswerButtons();
    showAnswerTip();
    ui->Btn_CanHear->setEnabled(false);
    ui->Btn_CantListen->setEnabled(false);
}

void HeadsetPage::onAnswerButtonClicked(QAbstractButton* button)
{
    m_answerCorrect = button->text() == m_correctAnswer;
    ui->Btn_CanHear->setEnabled(true);
    ui->Btn_CantListen->setEnabled(true);
    if (m_answerTip) {
        m_answerTip->hide();
    }
}

void HeadsetPage::on_SpeakerIndexChanged(int nIndex)
{
    m_speaker.setCurrentDevice(ui->cb_ad_output_name->itemData(nIndex, Qt::UserRole).toString());
}

void HeadsetPage::setTexts()
{
    ui->Btn_CanHear->setText(qtTrId("ID_HeadsetPage_CanHear"));
    ui->label_select_headphone->setText(qtTrId("ID_HeadsetPage_Speaker"));
    ui->Btn_CantListen->setText(qtTrId("ID_HeadsetPage_CanNotHear"));
    ui->label->setText(qtTrId("ID_Volume"));
    ui->label_2->setText(qtTrId("ID_HeadsetPage_Tip"));
    ui->item2->setText(qtTrId("ID_HeadsetPage_sound0"));
    ui->item0->setText(qtTrId("ID_HeadsetPage_sound2"));
    ui->item1->setText(qtTrId("ID_HeadsetPage_sound1"));
    ui->item3->setText(qtTrId("ID_HeadsetPage_sound3"));
    ui->label_Play->setText(qtTrId("ID_HeadsetPage_play"));
}

// For a screen reader: what a picture or a place says to the eye.
void HeadsetPage::nameControls()
{
    DeviceChecks::setCaption(ui->cb_ad_output_name, ui->label_select_headphone);
    m_volume->setCaption(ui->label->text());
    ui->tb_play_test_sound->setAccessibleName(qtTrId("ID_HeadsetPage_Play"));
    ui->tb_play_test_sound->setAccessibleDescription(ui->label_2->text());
    const QString question = qtTrId("ID_HeadsetPage_PleaseSelectTheAnswer");
    for (QRadioButton* button : {ui->item0, ui->item1, ui->item2, ui->item3}) {
        button->setAccessibleDescription(question);
    }
}

// A name that a translation leaves empty is replaced by its id, and one that it gives to a second
// sound gets a number, so that there are always as many names as sounds.
void HeadsetPage::fillSoundFiles()
{
    for (const Sound& sound : Sounds) {
        QString name = qtTrId(sound.nameId);
        if (name.isEmpty()) {
            name = QLatin1String(sound.nameId);
        }
        QString distinctName = name;
        for (int number = 2; m_soundFiles.count(distinctName) != 0; ++number) {
            distinctName = QStringLiteral("%1 (%2)").arg(name).arg(number);
        }
        m_soundFiles.emplace(distinctName, sound.file);
    }
}

void HeadsetPage::setUpAnswerButtons()
{
    for (QRadioButton* button : {ui->item0, ui->item1, ui->item2, ui->item3}) {
        m_answerGroup.addButton(button);
        button->setChecked(false);
        button->setEnabled(false);
        button->setStyleSheet(AnswerStyle);
    }
    const QList<QAbstractButton*> buttons = m_answerGroup.buttons();
    for (QAbstractButton* button : buttons) {
        button->hide();
    }
    connect(&m_answerGroup, SIGNAL(buttonClicked(QAbstractButton*)), this,
            SLOT(onAnswerButtonClicked(QAbstractButton*)));
    connect(ui->Btn_CanHear, &QPushButton::clicked, this, [this] { finishCheck(true); });
    connect(ui->Btn_CantListen, &QPushButton::clicked, this, [this] { finishCheck(false); });
}

void HeadsetPage::addTips()
{
    const QStringList lines{qtTrId("ID_CameraPage_1"), qtTrId("ID_HeadsetPage_2"),
                            qtTrId("ID_HeadsetPage_3"), qtTrId("ID_HeadsetPage_4"),
                            qtTrId("ID_CameraPage_5")};
    auto* tips =
        new TipsWidget(qtTrId("ID_HeadsetPage_ClickHere"), lines.join(QLatin1Char('\n')), this);
    ui->verticalLayout->insertLayout(ui->verticalLayout->count() - 1, tips);
    DeviceChecks::setTabOrder(ui->cb_ad_output_name,
                              {ui->tb_play_test_sound, ui->item2, ui->item1, ui->item0, ui->item3,
                               m_volume->slider(), tips->button(), ui->Btn_CanHear,
                               ui->Btn_CantListen});
}

void HeadsetPage::connectSpeaker()
{
    connect(m_volume, &Volume::setVolumeByUser, &m_speaker, &LumSpeaker::setVolume);
    connect(&m_speaker, &LumSpeaker::deviceListChanged, this, &HeadsetPage::onDeviceListChanged);
    connect(&m_speaker, &LumSpeaker::currentDeviceChanged, this,
            &HeadsetPage::onCurrentDeviceChanged);
    connect(&m_speaker, &LumSpeaker::volumeChanged, m_volume, &Volume::setVolume);
    connect(&m_speaker, &LumSpeaker::workStateChanged, m_volume, &QWidget::setEnabled);
}

void HeadsetPage::followComboBox()
{
    connect(ui->cb_ad_output_name, SIGNAL(currentIndexChanged(int)), this,
            SLOT(on_SpeakerIndexChanged(int)));
}

void HeadsetPage::ignoreComboBox()
{
    disconnect(ui->cb_ad_output_name, SIGNAL(currentIndexChanged(int)), this,
               SLOT(on_SpeakerIndexChanged(int)));
}

// The speaker is asked before the box is touched, here and below: it may tell news from within each
// call, and those fill the box, too.
void HeadsetPage::onDeviceListChanged()
{
    auto list = LumSpeaker::getDeviceList(false);
    if (list.empty()) {
        list.emplace_back(HardwareMgrInterface::NoneDevice, LumSpeaker::getNoneDeviceText(true));
    }
    ignoreComboBox();
    ui->cb_ad_output_name->clear();
    ui->cb_ad_output_name->hidePopup();
    for (const auto& [id, name] : list) {
        ui->cb_ad_output_name->addItem(name, QVariant(id));
    }
    followComboBox();
}

void HeadsetPage::onCurrentDeviceChanged(const QString& deviceId)
{
    QCustomComboBox* combo = ui->cb_ad_output_name;
    const auto indexOf = [combo](const QString& id) {
        return combo->findData(id, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
    };
    const QString noneText =
        indexOf(deviceId) >= 0 ? QString() : LumSpeaker::getNoneDeviceText(false);
    const int volume = m_speaker.getVolume();
    const bool isWorking = m_speaker.isWorking();
    ignoreComboBox();
    const bool isListed = indexOf(deviceId) >= 0;
    const bool isPresent = isListed && deviceId != HardwareMgrInterface::NoneDevice;
    if (isPresent) {
        combo->removeItem(indexOf(HardwareMgrInterface::NoneDevice));
    }
    if (!isListed) {
        combo->addItem(noneText, QVariant(HardwareMgrInterface::NoneDevice));
    }
    showSpeakerPresence(isPresent);
    combo->setCurrentIndex(indexOf(isListed ? deviceId : HardwareMgrInterface::NoneDevice));
    m_volume->setVolume(volume);
    m_volume->setEnabled(isWorking);
    selectComboData(combo, deviceId);
    followComboBox();
}

void HeadsetPage::showSpeakerPresence(bool isPresent)
{
    ui->stackedWidget->setCurrentWidget(isPresent ? ui->page_play : ui->noHeadsetPage);
    ui->Btn_CanHear->setEnabled(isPresent);
    ui->Btn_CantListen->setEnabled(!isPresent);
}

void HeadsetPage::drawAnswers()
{
    std::mt19937 generator(std::random_device{}());
    std::vector<QString> candidates;
    for (const auto& [name, file] : m_soundFiles) {
        candidates.push_back(name);
    }
    std::vector<QString> answers;
    for (int i = 0; i < AnswerCount; ++i) {
        const auto drawn =
            candidates.begin() + randomIndex(generator, static_cast<int>(candidates.size()));
        answers.push_back(*drawn);
        candidates.erase(drawn);
    }
    m_answerGroup.setExclusive(false); // otherwise one would have to stay checked
    const QList<QAbstractButton*> buttons = m_answerGroup.buttons();
    auto answer = answers.cbegin();
    for (QAbstractButton* button : buttons) {
        button->setText(*answer++);
        button->adjustSize();
        button->show();
        button->setChecked(false);
    }
    m_answerGroup.setExclusive(true);
    m_correctAnswer = answers.at(static_cast<std::size_t>(randomIndex(generator, AnswerCount)));
}

// Without a player nothing ever says that the sound is over: only hiding the page ends that. A
// player may be one that was handed out before, and is still connected then.
void HeadsetPage::startPlayer()
{
    const QString path =
        QCoreApplication::applicationDirPath() + SoundFolder + m_soundFiles.at(m_correctAnswer);
    m_player = CreateAudioPlayer(TestSoundType, path, FullVolume, nullptr, 0, false, false);
    if (m_player) {
        connect(m_player, &AudioPlayer::playFileFinished, this, &HeadsetPage::onPlayFinished,
                Qt::UniqueConnection);
    }
}

// The engine may say from within the call that the sound is over.
void HeadsetPage::endPlayer()
{
    if (AudioPlayer* player = std::exchange(m_player, nullptr)) {
        DeleleAudioPlayer(player);
    }
}

void HeadsetPage::onPlayFinished()
{
    ui->tb_play_test_sound->setEnabled(true);
    ui->label_Play->setText(qtTrId("ID_HeadsetPage_PlayAgain"));
    endPlayer();
    ui->Btn_CantListen->setEnabled(true);
    enableAnswerButtons();
}

void HeadsetPage::enableAnswerButtons()
{
    for (QRadioButton* button : {ui->item0, ui->item1, ui->item2, ui->item3}) {
        button->setEnabled(true);
    }
}

void HeadsetPage::showAnswerTip()
{
    if (!m_answerTip) {
        m_answerTip = new LumToolTip(qtTrId("ID_HeadsetPage_PleaseSelectTheAnswer"), false,
                                     ui->page_play, Qt::AlignCenter, false, AnswerTipColor);
        m_answerTip->adjustSize();
        QRect balloon = m_answerTip->geometry();
        balloon.moveBottomRight(ui->playArea->geometry().topRight() + AnswerTipOffset);
        m_answerTip->setGeometry(balloon);
    }
    m_answerTip->show();
}
