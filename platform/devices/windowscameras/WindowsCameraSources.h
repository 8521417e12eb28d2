// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraFeed.h"
#include "platform/devices/mediafoundation/MediaFoundation.h"
#include "platform/devices/windowscameras/WindowsCameraSource.h"

#include <memory>
#include <vector>

namespace Platform {

class MediaSession;

// Windows' cameras: those of Media Foundation, then those that only DirectShow lists. A camera that
// both list is taken from Media Foundation. On one thread with COM.
class WindowsCameraSources
{
public:
    struct List
    {
        CameraServer server = CameraServer::Answers;
        std::vector<WindowsCameraSource> cameras; // of a server that answers
    };

    explicit WindowsCameraSources(const MediaFoundationLoader& load);

    // Takes any time.
    List look();

private:
    List lookAtMediaFoundation();
    void addDirectShow(List& list);

    const std::optional<MediaFoundation> m_functions; // none if Windows hasn't got them
    std::shared_ptr<MediaSession> m_session;
    HRESULT m_directShowError = S_OK; // that was told last
};

} // namespace Platform
