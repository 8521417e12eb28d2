// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/CameraBackend.h"
#include "platform/scripted/LoggedSession.h"
#include "platform/scripted/WorkState.h"

#include <QObject>
#include <QTimer>

namespace Platform {

class ResultDocument;
class ScriptedCameras;

// One user of the scripted cameras.
class ScriptedCamera final : public QObject, public CameraBackend
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedCamera)

public:
    ScriptedCamera(ScriptedCameras& cameras, CallLog& log, ResultDocument& document,
                   Listener& listener);
    ~ScriptedCamera() override;

    DeviceList devices() const override;
    QString currentId() const override;
    QString currentName() const override;
    void setCurrent(const QString& id) override;
    DeviceState state() const override;
    bool delivers() const override;

    void start() override;
    void stop() override;
    void setOutputSize(const QSize& pixels) override;
    QImage latestPicture() const override;

private:
    void onCurrentChanged();
    void onFrame();
    bool canDeliver() const;
    bool isDelivering() const;
    DeviceState currentState() const;
    void runFrames();
    void notifyWorkState();
    void recordMeasurement();

    ScriptedCameras& m_cameras;
    ResultDocument& m_document; // what the camera delivered goes there
    Listener& m_listener;
    LoggedSession m_session;
    QTimer m_frameTimer;
    QTimer m_watchdog; // runs as long as the last picture is recent
    QSize m_outputSize;
    bool m_isStarted = false;
    int m_frame = 0;
    int m_pictures = 0; // of the current camera, like the next two
    int m_blackPictures = 0;
    int m_frozenPictures = 0;
    WorkState m_notified;
    mutable QImage m_picture; // painted when it is asked for
};

} // namespace Platform
