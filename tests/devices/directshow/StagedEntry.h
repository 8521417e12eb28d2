// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/windowscameras/CameraStage.h"

#include <thread>

namespace TestSupport {

// A staged camera in DirectShow's list, as long as this lives: an entry in the registry, and the
// class of its filter, which only this process has.
class StagedEntry
{
public:
    StagedEntry(std::shared_ptr<CameraStage> stage, std::shared_ptr<StagedCamera> camera);
    ~StagedEntry();
    StagedEntry(const StagedEntry&) = delete;
    StagedEntry& operator=(const StagedEntry&) = delete;

    void write(); // what has changed of the camera
    void removeClass();

private:
    void serve();

    const std::shared_ptr<CameraStage> m_stage;
    const std::shared_ptr<StagedCamera> m_camera;
    const CLSID m_class;
    const QString m_key; // below HKEY_CLASSES_ROOT
    HANDLE m_end;
    std::thread m_registrar;
};

} // namespace TestSupport
