// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "wizard/CheckPage.h"

#include <CommEngine/LumCamera.h>
#include <memory>

namespace Ui {
class CameraPage;
}
class LumToolTip;

// The camera check: choose a camera, look at its picture, answer whether it is seen. The camera
// runs while the page is visible. GUI thread only.
class CameraPage : public CheckPage
{
    Q_OBJECT
    Q_DISABLE_COPY(CameraPage)

public:
    explicit CameraPage(QWidget* parent = nullptr);
    ~CameraPage() override;

    bool isPassed() const override;
    void saveResult() override;
    void updateDeviceState() override;
    std::vector<QString> problemList() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void onSelectCameraChanged(int index);

private:
    void setTexts();
    void addTips();
    void followComboBox();
    void ignoreComboBox(); // while it is filled or its choice follows the camera

    void refillCameraList();
    void onCurrentCameraChanged();
    void updatePreview();
    void updateAnswerButtons();
    void showDisabledTip();

    std::unique_ptr<Ui::CameraPage> ui;
    bool m_noDevice = true;  // these four as of the last updateDeviceState()
    bool m_cameraOff = true; // there is one, but it isn't usable
    bool m_imageOk = false;
    QString m_currentCameraName;
    int m_countdownTimerId = 0;
    int m_countdown; // seconds until the answers unlock; 0: unlocked
    LumCamera m_camera;
    std::unique_ptr<LumToolTip> m_disabledTip;
};
