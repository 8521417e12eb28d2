// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/WasapiServer.h"

#include "platform/devices/wasapi/EndpointThread.h"
#include "platform/devices/wasapi/WasapiCapture.h"
#include "platform/devices/wasapi/WasapiPlayback.h"
#include "platform/devices/windows/DriverThread.h"

#include <chrono>
#include <utility>

namespace Platform {

namespace {

constexpr int MaxVolume = 100; // Windows makes nothing louder than its hardware does
constexpr std::chrono::seconds WatchInterval(1);
constexpr std::chrono::milliseconds EndTimeout(50);

} // namespace

WasapiServer::WasapiServer() : m_endpoints(std::make_shared<EndpointThread>(publisher()))
{
    startThread();
    connect(&m_watch, &QTimer::timeout, this, [this] {
        startThread();
        m_endpoints->tick();
    });
    m_watch.start(WatchInterval);
}

WasapiServer::~WasapiServer()
{
    m_endpoints->stop();
    m_endpoints->waitForEnd(EndTimeout);
}

int WasapiServer::maximumVolume(SoundKind /*kind*/) const
{
    return MaxVolume;
}

std::unique_ptr<SoundCapture> WasapiServer::createCapture()
{
    return std::make_unique<WasapiCapture>();
}

std::unique_ptr<SoundPlayback> WasapiServer::createPlayback(std::shared_ptr<SoundBuffer> sound,
                                                            SoundPlayback::Finished finished)
{
    return std::make_unique<WasapiPlayback>(std::move(sound), finished);
}

// None is to be had while too many hang. Without one, the ticks tell that Windows doesn't answer.
void WasapiServer::startThread()
{
    m_hasThread = m_hasThread || DriverThread::run(DriverThread::Priority::Usual,
                                                   [endpoints = m_endpoints] { endpoints->run(); });
}

void WasapiServer::sendVolume(SoundKind kind, const QString& id, int percent, quint64 order)
{
    m_endpoints->setVolume(kind, id, percent, order);
}

} // namespace Platform
