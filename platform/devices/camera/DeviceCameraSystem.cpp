// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/DeviceCameraSystem.h"

#include "platform/backend/EndingThreads.h"
#include "platform/devices/camera/DeviceCamera.h"
#include "platform/devices/camera/PreferredFeed.h"

#include <QDir>

namespace Platform {

namespace {

const QString StoreName = QStringLiteral("devices.ini");

} // namespace

DeviceCameraSystem::DeviceCameraSystem(const QString& settingsFolder, ReportSink& report,
                                       FeedMaker makeFeed, FeedMaker makeSecondFeed)
    : m_settings(QDir(settingsFolder).filePath(StoreName)),
      m_report(report),
      m_makeFeed(makeSecondFeed ? preferredFeedMaker(std::move(makeFeed), std::move(makeSecondFeed))
                                : std::move(makeFeed)),
      m_ending(std::make_shared<EndingThreads>())
{
    m_settings.value({}); // reads the file now, while no dialog is open
}

DeviceCameraSystem::~DeviceCameraSystem()
{
    m_ending->wait();
}

std::unique_ptr<CameraBackend> DeviceCameraSystem::createCamera(CameraBackend::Listener& listener)
{
    return std::make_unique<DeviceCamera>(listener, m_makeFeed, m_ending, m_settings, m_report);
}

} // namespace Platform
