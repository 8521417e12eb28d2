// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/CheckPage.h"

#include <CommEngine/LumSpeaker.h>
#include <QButtonGroup>
#include <map>
#include <memory>

namespace Ui {
class HeadsetPage;
}
class AudioPlayer;
class LumToolTip;
class QAbstractButton;
class QLabel;
class Volume;

// The speaker check: choose a speaker, set its volume, play a sound, pick it out of four and answer
// whether it is heard. GUI thread only.
class HeadsetPage : public CheckPage
{
    Q_OBJECT
    Q_DISABLE_COPY(HeadsetPage)

public:
    explicit HeadsetPage(QWidget* parent = nullptr);
    ~HeadsetPage() override;

    bool isPassed() const override;
    void saveResult() override;
    void updateDeviceState() override;
    std::vector<QString> problemList() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void onTestLoudspeaker();
    void onAnswerButtonClicked(QAbstractButton* button);
    void on_SpeakerIndexChanged(int nIndex);

private:
    void setTexts();
    void nameControls();
    void fillSoundFiles();
    void setUpAnswerButtons();
    void addTips();
    void connectSpeaker();
    void followComboBox();
    void ignoreComboBox(); // while it is filled or its choice follows the speaker

    void onDeviceListChanged();
    void onCurrentDeviceChanged(const QString& deviceId);
    void showSpeakerPresence(bool isPresent);
    void drawAnswers();
    void startPlayer();
    void endPlayer();
    void onPlayFinished();
    void enableAnswerButtons();
    void showAnswerTip();

    std::unique_ptr<Ui::HeadsetPage> ui;
    Volume* m_volume = nullptr;
    AudioPlayer* m_player = nullptr;         // the engine's; null: nothing plays
    std::map<QString, QString> m_soundFiles; // name shown to file name
    QString m_correctAnswer;
    bool m_answerCorrect = false;
    bool m_noSpeaker = false;
    QString m_speakerName;
    bool m_firstPlay = true; // the constructor's draw hasn't been played yet
    QButtonGroup m_answerGroup;
    LumToolTip* m_answerTip = nullptr;
    QLabel* m_handLabel = nullptr;
    int m_handTimerId = 0;
    LumSpeaker m_speaker;
};
