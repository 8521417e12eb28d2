// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/CommEngineExport.h>
#include <QBasicTimer>
#include <QFrame>
#include <QPointer>

class LumCameraBase;

enum enumPlayerType : int {};

// Shows the frames of a camera, scaled to fit with the aspect ratio kept. If there is nothing to
// see, it says why. GUI thread only.
class COMMENGINE_EXPORT PlayerContainer : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY(PlayerContainer)

public:
    // The flag and the type are for the client's other players and have no meaning here.
    explicit PlayerContainer(QWidget* parent, bool isLocal = true,
                             enumPlayerType type = enumPlayerType(1));
    ~PlayerContainer() override;

    void attachCamera(LumCameraBase* camera); // not owned; null detaches
    void play();
    void stop(); // shows no frames

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void onFrameArrived();
    void refreshNotice();
    void runSpinner();
    bool paintPicture();
    QFont noticeFont() const;

    QPointer<LumCameraBase> m_camera;
    bool m_isPlaying = false;
    QString m_notice; // empty if there is a picture
    bool m_isStarting = false;
    QBasicTimer m_spinner;
    int m_spinnerStep = 0;
};
