// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/PipeWireCameraSystem.h"

#include "platform/devices/pipewire/CameraLog.h"
#include "platform/devices/pipewire/PipeWireCamera.h"
#include "platform/devices/pipewire/PipeWireThread.h"

#include <QDir>
#include <algorithm>

namespace Platform {

namespace {

const QString StoreName = QStringLiteral("devices.ini");
constexpr unsigned long EndTimeoutMs = 1000;

} // namespace

PipeWireCameraSystem::PipeWireCameraSystem(const QString& settingsFolder, ReportSink& report)
    : m_settings(QDir(settingsFolder).filePath(StoreName)), m_report(report)
{
    m_settings.value({}); // reads the file now, while no dialog is open
}

PipeWireCameraSystem::~PipeWireCameraSystem()
{
    for (std::unique_ptr<PipeWireThread>& thread : m_ending) {
        if (!thread->wait(EndTimeoutMs)) {
            qCWarning(CameraLog, "The camera thread doesn't end; it is left behind");
            static_cast<void>(thread.release());
        }
    }
}

std::unique_ptr<CameraBackend> PipeWireCameraSystem::createCamera(CameraBackend::Listener& listener)
{
    return std::make_unique<PipeWireCamera>(listener, sharedThread(), m_settings, m_report);
}

std::shared_ptr<PipeWireThread> PipeWireCameraSystem::sharedThread()
{
    m_ending.erase(std::remove_if(m_ending.begin(), m_ending.end(),
                                  [](const auto& thread) { return thread->isFinished(); }),
                   m_ending.end());
    std::shared_ptr<PipeWireThread> result = m_thread.lock();
    if (!result) {
        // Its last user only asks it to end, and goes on at once.
        result =
            std::shared_ptr<PipeWireThread>(new PipeWireThread, [this](PipeWireThread* thread) {
                thread->requestEnd();
                m_ending.emplace_back(thread);
            });
        m_thread = result;
        result->start();
    }
    return result;
}

} // namespace Platform
