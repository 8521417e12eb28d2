// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/CommEngineExport.h>
#include <QFrame>
#include <QPointer>

class LumCameraBase;

enum enumPlayerType : int {};

// Shows the frames of a camera, scaled to fit with the aspect ratio kept. GUI thread only.
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
    void stop(); // shows nothing

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void onFrameArrived();

    QPointer<LumCameraBase> m_camera;
    bool m_isPlaying = false;
};
