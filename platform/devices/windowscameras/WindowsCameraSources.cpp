// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windowscameras/WindowsCameraSources.h"

#include "platform/backend/Log.h"
#include "platform/devices/directshow/DirectShowCamera.h"
#include "platform/devices/directshow/DirectShowSources.h"
#include "platform/devices/mediafoundation/MediaFoundationCamera.h"
#include "platform/devices/mediafoundation/MediaFoundationSources.h"
#include "platform/devices/mediafoundation/MediaSession.h"
#include "platform/devices/windowscameras/WindowsCameraError.h"

#include <algorithm>

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

// What isn't plugged in anywhere is named by its entry in the list.
WindowsCameraSource cameraOf(const DirectShowSource& source)
{
    const auto make = [entry = source.entry](const std::shared_ptr<SampleBox>& box) {
        return std::make_unique<DirectShowCamera>(entry, box);
    };
    const QString place = WindowsCameraSource::placeOf(source.path);
    return {source.entry, place.isEmpty() ? source.entry : place, source.name, make};
}

} // namespace

WindowsCameraSources::WindowsCameraSources(const MediaFoundationLoader& load) : m_functions(load())
{
    if (!m_functions) {
        qCInfo(Log::camera, "Windows' media features are missing: there is DirectShow alone");
    }
}

WindowsCameraSources::List WindowsCameraSources::look()
{
    List result = lookAtMediaFoundation();
    addDirectShow(result);
    if (!result.cameras.empty()) {
        result.server = CameraServer::Answers;
    }
    return result;
}

WindowsCameraSources::List WindowsCameraSources::lookAtMediaFoundation()
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

void WindowsCameraSources::addDirectShow(List& list)
{
    std::vector<DirectShowSource> sources;
    const HRESULT error = DirectShowSources::list(sources);
    if (FAILED(error) && error != m_directShowError) {
        qCInfo(Log::camera, "DirectShow's cameras can't be listed: %s",
               qUtf8Printable(WindowsCameraError::toString(error)));
    }
    m_directShowError = error;
    std::vector<WindowsCameraSource> others;
    for (const DirectShowSource& source : sources) {
        WindowsCameraSource camera = cameraOf(source);
        const bool isKnown = std::any_of(
            list.cameras.begin(), list.cameras.end(),
            [&camera](const WindowsCameraSource& one) { return one.place == camera.place; });
        if (!isKnown) {
            others.push_back(std::move(camera));
        }
    }
    std::move(others.begin(), others.end(), std::back_inserter(list.cameras));
}

} // namespace Platform
