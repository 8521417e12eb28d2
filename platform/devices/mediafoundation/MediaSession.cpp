// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/mediafoundation/MediaSession.h"

namespace Platform {

std::shared_ptr<MediaSession> MediaSession::start(const MediaFoundation& functions, HRESULT& error)
{
    error = functions.startUp(MF_VERSION, MFSTARTUP_LITE);
    return SUCCEEDED(error) ? std::shared_ptr<MediaSession>(new MediaSession(functions)) : nullptr;
}

MediaSession::~MediaSession()
{
    m_functions.shutDown();
}

} // namespace Platform
