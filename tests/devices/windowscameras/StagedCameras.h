// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/windowscameras/StagedCamerasExport.h"
#include "tests/devices/windowscameras/StagedMode.h"
#include "tests/devices/windowscameras/StagedSystem.h"

#include <QString>
#include <map>
#include <memory>
#include <vector>

#include <windows.h>

namespace TestSupport {

struct CameraStage;
class StagedEntry;

// Stands for the cameras of Windows in this process. Media Foundation's list (MFEnumDeviceSources)
// and sources come from here, all else is the system's. So do DirectShow's filters, which it lists
// itself. A camera is named by its symbolic link. It shows what the engine makes of our reading of
// Windows, not Windows. One object at a time; cameras are plugged on one thread, all else may be
// done on any.
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

    void setSystem(StagedSystem system); // of those that are plugged from now on
    // A new camera, or one that was unplugged: what was ordered of it before is forgotten. The name
    // may be any UTF-16; a null string is no name.
    void plug(const QString& link, const QString& name,
              const std::vector<StagedMode>& modes = {{}});
    void unplug(const QString& link); // its sources send nothing any more
    void setName(const QString& link, const QString& name);
    void hideLink(const QString& link);
    static void castDeviceChange(); // to all windows, as Windows does after plugging

    // S_OK ends what is refused.
    void refuseList(HRESULT error); // Media Foundation's
    void refuseActivation(const QString& link, HRESULT error);
    void refuseReading(const QString& link, HRESULT error); // no source reader can be made
    void hangList(bool hangs);                              // the same
    void hangActivation(const QString& link, bool hangs);
    void hangStart(const QString& link, bool hangs);
    void hangShutdown(const QString& link, bool hangs);
    int hangingCalls() const;

    void stall(const QString& link, bool isSilent);
    void breakFrames(const QString& link, bool areBroken); // they are too short
    void endStream(const QString& link);
    // DirectShow's alone: an error that is told once, a filter that can't be asked for a format,
    // and one whose program is gone.
    void breakStream(const QString& link, HRESULT error);
    void refuseConfiguration(const QString& link);
    void removeClass(const QString& link);

    int lists() const; // how often it was asked for one
    int activations(const QString& link) const;
    int opened(const QString& link) const; // sources that nobody has shut down
    int objects() const;                   // that nobody has released

private:
    std::shared_ptr<CameraStage> m_stage;
    StagedSystem m_system = StagedSystem::MediaFoundation;
    std::map<QString, std::shared_ptr<StagedEntry>> m_entries; // of DirectShow, by link
};

} // namespace TestSupport
