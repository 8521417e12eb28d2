// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/mediafoundation/MediaFoundation.h"

#include <memory>

namespace Platform {

// Media Foundation is started as long as there is one. It may hang at the start and at the end, so
// it belongs on a thread that nobody waits for.
class MediaSession
{
public:
    // Null if it can't be started; error says why.
    static std::shared_ptr<MediaSession> start(const MediaFoundation& functions, HRESULT& error);
    ~MediaSession();
    MediaSession(const MediaSession&) = delete;
    MediaSession& operator=(const MediaSession&) = delete;

    const MediaFoundation& functions() const { return m_functions; }

private:
    explicit MediaSession(const MediaFoundation& functions) : m_functions(functions) {}

    const MediaFoundation m_functions;
};

} // namespace Platform
