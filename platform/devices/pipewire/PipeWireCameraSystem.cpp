// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/PipeWireCameraSystem.h"

#include "platform/devices/camera/DeviceCamera.h"
#include "platform/backend/EndingThreads.h"
#include "platform/devices/pipewire/PipeWireFeed.h"
#include "platform/devices/pipewire/PipeWireThread.h"

#include <QDir>

namespace Platform {

namespace {

const QString StoreName = QStringLiteral("devices.ini");

} // namespace

PipeWireCameraSystem::PipeWireCameraSystem(const QString& settingsFolder, ReportSink& report,
                                           FeedMaker makeSecondFeed)
    : m_settings(QDir(settingsFolder).filePath(StoreName)),
      m_report(report),
      m_makeSecondFeed(std::move(makeSecondFeed)),
      m_ending(std::make_shared<EndingThreads>())
{
    m_settings.value({}); // reads the file now, while no dialog is open
}

PipeWireCameraSystem::~PipeWireCameraSystem()
{
    m_ending->wait();
}

std::unique_ptr<CameraBackend> PipeWireCameraSystem::createCamera(CameraBackend::Listener& listener)
{
    const auto makeFeed = [thread = sharedThread()](const auto& slot, auto receiver, const auto&) {
        return std::make_unique<PipeWireFeed>(thread, slot, std::move(receiver));
    };
    return std::make_unique<DeviceCamera>(listener, makeFeed, m_makeSecondFeed, m_ending,
                                          m_settings, m_report);
}

std::shared_ptr<PipeWireThread> PipeWireCameraSystem::sharedThread()
{
    std::shared_ptr<PipeWireThread> result = m_thread.lock();
    if (!result) {
        // Its last user only asks it to end, and goes on at once.
        result = std::shared_ptr<PipeWireThread>(new PipeWireThread,
                                                 [ending = m_ending](PipeWireThread* thread) {
                                                     thread->requestEnd();
                                                     ending->take(std::unique_ptr<QThread>(thread));
                                                 });
        m_thread = result;
        result->start();
    }
    return result;
}

} // namespace Platform
