// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/CheckPage.h"

#include <CommEngine/LumMicrophone.h>
#include <memory>

namespace Ui {
class MicrophonePage;
}
class LumToolTip;
class MicphoneRecorder;
class QLabel;
class QProgressBar;
class Volume;

// The microphone check: choose a microphone, speak while the bar moves and the voice is played
// back, answer whether it is heard and seen. The microphone is open while the page is visible. GUI
// thread only.
class MicrophonePage : public CheckPage
{
    Q_OBJECT
    Q_DISABLE_COPY(MicrophonePage)

public:
    explicit MicrophonePage(QWidget* parent = nullptr);
    ~MicrophonePage() override;

    bool isPassed() const override;
    void saveResult() override;
    void updateDeviceState() override;
    std::vector<QString> problemList() const override;

protected:
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private Q_SLOTS:
    void on_cb_ad_input_name_currentIndexChanged(int index);
    void on_recordButton_clicked();

private:
    void setTexts();
    void addLevelBars();
    void nameControls();
    void addTips();
    void connectMicrophone();
    void followComboBox();
    void ignoreComboBox(); // while it is filled or its choice follows the microphone

    void refreshDeviceList();
    void onCurrentMicChanged();
    void refreshVolume();
    void onUserVolume(int value);
    void onSystemVolume(float percent);
    void updateNoisyTip(int volume);
    void setLevel(float intensity);
    void refreshWorkState();
    void showDisabledTip();
    void showNoisyTip(bool show);
    void onCountdownTick();
    void stopRecording();

    static bool s_handSmall; // which picture of the hand comes next, on whatever page

    std::unique_ptr<Ui::MicrophonePage> ui;
    Volume* m_volume;
    int m_recordTimerId = 0; // 0: no countdown
    int m_countdown;
    std::unique_ptr<MicphoneRecorder> m_recorder;
    bool m_noMicrophone = true; // these three as of the last updateDeviceState()
    bool m_microphoneDisabled = true;
    bool m_microphoneWorks = false;
    QProgressBar* m_levelBar = nullptr;
    QString m_currentMicrophoneName;
    LumMicrophone m_microphone;
    std::unique_ptr<LumToolTip> m_disabledTip;
    std::unique_ptr<LumToolTip> m_noisyTip;
    QLabel* m_handLabel = nullptr;
    int m_handTimerId = 0;
};
