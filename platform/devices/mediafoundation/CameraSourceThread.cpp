// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/mediafoundation/CameraSourceThread.h"

#include "platform/backend/Log.h"
#include "platform/devices/mediafoundation/CameraSources.h"
#include "platform/devices/mediafoundation/MediaFoundationError.h"
#include "platform/devices/mediafoundation/MediaSession.h"

namespace Platform {

namespace {

using List = CameraSourceThread::List;

List failure(const MediaFoundation& functions, HRESULT error)
{
    qCInfo(Log::camera, "Windows' cameras can't be listed: %s",
           qUtf8Printable(MediaFoundationError::toString(error)));
    const bool isDenied = MediaFoundationError::stateOf(error) == DeviceState::Denied;
    return {isDenied ? CameraServer::Denies : CameraServer::Lost, {}, functions};
}

List listOf(const MediaFoundation& functions)
{
    std::vector<CameraSource> sources;
    const HRESULT error = CameraSources::list(functions, sources);
    if (FAILED(error)) {
        return failure(functions, error);
    }
    List result{CameraServer::Answers, {}, functions};
    for (const CameraSource& source : sources) {
        result.cameras.push_back({source.link, source.name});
    }
    return result;
}

} // namespace

CameraSourceThread::CameraSourceThread(MediaFoundationLoader load, Publish publish)
    : m_load(std::move(load)), m_publish(std::move(publish))
{
}

void CameraSourceThread::run()
{
    const std::optional<MediaFoundation> functions = m_load();
    if (!functions) {
        qCInfo(Log::camera, "Windows' media features are missing, so there are no cameras");
        m_publish({CameraServer::NotBuilt, {}, {}});
        return;
    }
    std::shared_ptr<MediaSession> session;
    while (awaitTurn()) {
        HRESULT error = S_OK;
        if (!session) {
            session = MediaSession::start(*functions, error);
        }
        m_publish(session ? listOf(*functions) : failure(*functions, error));
    }
}

void CameraSourceThread::lookAgain()
{
    const std::scoped_lock lock(m_mutex);
    m_isDue = true;
    m_changed.notify_all();
}

void CameraSourceThread::stop()
{
    const std::scoped_lock lock(m_mutex);
    m_isStopped = true;
    m_changed.notify_all();
}

bool CameraSourceThread::awaitTurn()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isDue || m_isStopped; });
    m_isDue = false;
    return !m_isStopped;
}

} // namespace Platform
