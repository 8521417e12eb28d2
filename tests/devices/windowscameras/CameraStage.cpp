// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/windowscameras/CameraStage.h"

#include <algorithm>
#include <utility>

namespace TestSupport {

namespace {

std::mutex currentMutex;
std::shared_ptr<CameraStage> currentStage;

} // namespace

std::shared_ptr<CameraStage> CameraStage::current()
{
    const std::scoped_lock lock(currentMutex);
    return currentStage;
}

void CameraStage::setCurrent(std::shared_ptr<CameraStage> stage)
{
    const std::scoped_lock lock(currentMutex);
    currentStage = std::move(stage);
}

StagedCamera& CameraStage::find(const QString& link) const
{
    const auto found =
        std::find_if(all.rbegin(), all.rend(), [&link](const std::shared_ptr<StagedCamera>& one) {
            return one->link == link;
        });
    Q_ASSERT(found != all.rend());
    return **found;
}

void CameraStage::pass(const bool& hangs)
{
    std::unique_lock lock(mutex);
    ++hanging;
    goesOn.wait(lock, [&hangs] { return !hangs; });
    --hanging;
    goesOn.notify_all();
}

} // namespace TestSupport
