// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/CameraCause.h"
#include "platform/backend/DeviceInfo.h"
#include "platform/backend/SoundServerState.h"

#include <QImage>
#include <QSize>

namespace Platform {

// One user of the cameras: list, choice and frames. All calls are on the GUI thread, and none
// blocks. The listener is called on the GUI thread from the event loop: never during a call of this
// class, and never after the destructor.
class CameraBackend
{
public:
    class Listener
    {
    public:
        virtual void cameraListChanged() = 0;
        virtual void currentCameraChanged(const QString& id) = 0;
        virtual void cameraWorkStateChanged(const QString& id, bool works) = 0;
        virtual void cameraCauseChanged() = 0;
        virtual void frameArrived() = 0; // no second one is posted before the first is handled

    protected:
        ~Listener() = default;
    };

    virtual ~CameraBackend() = default;

    virtual DeviceList devices() const = 0;
    // The chosen camera, also while it is unplugged. Empty if none was chosen yet, or the entry for
    // no camera was.
    virtual QString currentId() const = 0;
    virtual QString currentName() const = 0;
    // The user's choice, which may be remembered. An empty id turns the camera off.
    virtual void setCurrent(const QString& id) = 0;
    virtual DeviceState state() const = 0;
    // Of any camera: what is known of it without choosing or opening it.
    virtual DeviceState stateOf(const QString& id) const = 0;
    // A frame arrived within the stall timeout (StallTimeout.h).
    virtual bool delivers() const = 0;
    // Why the started camera shows no picture; none while it is stopped.
    virtual CameraCause cause() const = 0;
    // Whether the service answers that the list comes from, also while no camera is
    // started. Running unless a back end knows better.
    virtual SoundServerState serverState() const { return SoundServerState::Running; }

    virtual void start() = 0;
    virtual void stop() = 0;                             // no frame comes after this call
    virtual void setOutputSize(const QSize& pixels) = 0; // an upper bound; the aspect is kept
    virtual QImage latestFrame() const = 0;              // mirrored; null before the first
};

} // namespace Platform
