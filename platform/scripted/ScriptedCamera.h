// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/CameraBackend.h"
#include "platform/backend/RateSeries.h"
#include "platform/scripted/ScriptedSession.h"

#include <QElapsedTimer>
#include <QTimer>

namespace Platform {

class ScriptedCameras;

// One user of the scripted cameras.
class ScriptedCamera final : public ScriptedSession<CameraBackend, ScriptedCameras>
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedCamera)

public:
    ScriptedCamera(ScriptedCameras& cameras, CallLog& log, ResultDocument& document,
                   Listener& listener);
    ~ScriptedCamera() override;

    DeviceList devices() const override;
    bool delivers() const override;
    CameraCause cause() const override;
    SoundServerState serverState() const override;

    void start() override;
    void stop() override;
    void setOutputSize(const QSize& pixels) override;
    QImage latestFrame() const override;

private:
    void onCurrentChanged();
    void onFrame();
    bool canDeliver() const;
    bool isDelivering() const;
    CameraCause::Kind causeKind() const;
    CameraCause currentCause() const;
    DeviceState currentState() const override;
    void runFrames();
    void notifyWorkState();
    void notifyCause();
    void recordMeasurement();

    QTimer m_frameTimer;
    QTimer m_watchdog; // runs while the last frame is recent
    QSize m_outputSize;
    bool m_isStarted = false;
    QElapsedTimer m_startClock;
    qint64 m_firstFrameMs = 0; // this and the next three: of the current camera
    QTimer m_patience;         // runs while a first frame may still come
    bool m_hasFrame = false;   // since it was started or chosen
    CameraCause m_knownCause;
    QElapsedTimer m_blackClock; // since the first of the black frames
    int m_frame = 0;
    int m_pictures = 0;
    RateSeries m_rate;
    int m_blackFrames = 0;
    int m_frozenFrames = 0;
    mutable QImage m_picture; // painted on demand
};

} // namespace Platform
