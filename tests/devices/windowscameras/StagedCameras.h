// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/windowscameras/StagedCamerasExport.h"
#include "tests/devices/windowscameras/StagedMode.h"

#include <QString>
#include <memory>
#include <vector>

#include <windows.h>

namespace TestSupport {

struct CameraStage;

// Stands for the cameras of Media Foundation in this process: the list (MFEnumDeviceSources) and
// the sources come from here, all else is the system's. A camera is named by its symbolic link. It
// shows what the engine makes of our reading of Windows, not Windows. One object at a time; any
// thread may use it.
//
// Frames come at the mode's rate while somebody asks for them. Unless the mode has a color, they
// have four quadrants: red and green above blue and white, in limited BT.601. The left edge of the
// upper half blinks black and white.
class STAGEDCAMERAS_EXPORT StagedCameras
{
public:
    StagedCameras();
    ~StagedCameras(); // what hangs goes on, and all cameras are gone
    StagedCameras(const StagedCameras&) = delete;
    StagedCameras& operator=(const StagedCameras&) = delete;

    // A new camera, or one that was unplugged: what was ordered of it before is forgotten. The name
    // may be any UTF-16; a null string is no name.
    void plug(const QString& link, const QString& name,
              const std::vector<StagedMode>& modes = {{}});
    void unplug(const QString& link); // its sources send nothing any more
    void setName(const QString& link, const QString& name);
    void hideLink(const QString& link);
    static void castDeviceChange(); // to all windows, as Windows does after plugging

    // S_OK ends what is refused.
    void refuseList(HRESULT error);
    void refuseActivation(const QString& link, HRESULT error);
    void refuseReading(const QString& link, HRESULT error); // no source reader can be made
    void hangList(bool hangs);
    void hangActivation(const QString& link, bool hangs);
    void hangStart(const QString& link, bool hangs);
    void hangShutdown(const QString& link, bool hangs);
    int hangingCalls() const;

    void stall(const QString& link, bool isSilent);
    void breakFrames(const QString& link, bool areBroken); // they are too short
    void endStream(const QString& link);

    int lists() const; // how often it was asked for one
    int activations(const QString& link) const;
    int opened(const QString& link) const; // sources that nobody has shut down
    int objects() const;                   // that nobody has released

private:
    std::shared_ptr<CameraStage> m_stage;
};

} // namespace TestSupport
