// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/windowscameras/StagedMode.h"
#include "tests/devices/windowscameras/StagedSystem.h"

#include <QMap>
#include <QString>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

#include <windows.h>

namespace TestSupport {

// A camera from plugging to unplugging. Guarded by the stage.
struct StagedCamera
{
    StagedSystem system = StagedSystem::MediaFoundation;
    QString link;
    QString name;
    std::vector<StagedMode> modes;
    bool isPresent = true;
    bool hasLink = true;
    HRESULT activationError = S_OK;
    HRESULT readingError = S_OK;
    bool hangsInActivation = false;
    bool hangsInStart = false;
    bool hangsInShutdown = false;
    bool isSilent = false;
    bool hasBrokenFrames = false;
    bool isOver = false;
    bool canBeConfigured = true;
    HRESULT streamError = S_OK; // to be told once
};

// What StagedCameras has.
struct CameraStage
{
    static std::shared_ptr<CameraStage> current(); // null if there is none
    static void setCurrent(std::shared_ptr<CameraStage> stage);

    StagedCamera& find(const QString& link) const; // the one that was plugged last
    void pass(const bool& hangs);                  // where a hanging call hangs

    mutable std::mutex mutex;
    std::condition_variable goesOn;
    std::vector<std::shared_ptr<StagedCamera>> all; // guarded by mutex, as are the next ones
    bool listHangs = false;
    int hanging = 0; // calls that do
    HRESULT listError = S_OK;
    QMap<QString, int> activations; // by link
    QMap<QString, int> opened;
    int lists = 0;
    std::atomic<int> objects{0};
};

} // namespace TestSupport
