// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windowscameras/WindowsCameraSources.h"

#include "platform/backend/Log.h"
#include "platform/devices/mediafoundation/MediaFoundationCamera.h"
#include "platform/devices/mediafoundation/MediaFoundationSources.h"
#include "platform/devices/mediafoundation/MediaSession.h"
#include "platform/devices/windowscameras/WindowsCameraError.h"

namespace Platform {

namespace {

using List = WindowsCameraSources::List;

List failure(HRESULT error)
{
    qCInfo(Log::camera, "Windows' cameras can't be listed: %s",
           qUtf8Printable(WindowsCameraError::toString(error)));
    const bool isDenied = WindowsCameraError::stateOf(error) == DeviceState::Denied;
    return {isDenied ? CameraServer::Denies : CameraServer::Lost, {}};
}

WindowsCameraSource cameraOf(const MediaFoundation& functions, const MediaFoundationSource& source)
{
    const auto make = [functions, link = source.link](const std::shared_ptr<SampleBox>& box) {
        return std::make_unique<MediaFoundationCamera>(functions, link, box);
    };
    return {source.link, WindowsCameraSource::placeOf(source.link), source.name, make};
}

} // namespace

WindowsCameraSources::WindowsCameraSources(const MediaFoundationLoader& load) : m_functions(load())
{
    if (!m_functions) {
        qCInfo(Log::camera, "Windows' media features are missing, so there are no cameras");
    }
}

WindowsCameraSources::List WindowsCameraSources::look()
{
    if (!m_functions) {
        return {CameraServer::NotBuilt, {}};
    }
    HRESULT error = S_OK;
    if (!m_session) {
        m_session = MediaSession::start(*m_functions, error);
    }
    std::vector<MediaFoundationSource> sources;
    if (m_session) {
        error = MediaFoundationSources::list(*m_functions, sources);
    }
    if (FAILED(error)) {
        return failure(error);
    }
    List result;
    for (const MediaFoundationSource& source : sources) {
        result.cameras.push_back(cameraOf(*m_functions, source));
    }
    return result;
}

} // namespace Platform
