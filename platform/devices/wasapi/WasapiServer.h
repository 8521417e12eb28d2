// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/SoundService.h"

#include <QTimer>

namespace Platform {

class EndpointThread;

// Windows' audio service, with the endpoints that are there. GUI thread only, and no call waits.
class WasapiServer final : public SoundService
{
    Q_OBJECT
    Q_DISABLE_COPY(WasapiServer)

public:
    WasapiServer();
    ~WasapiServer() override; // leaves the thread behind if it hangs

    int maximumVolume(SoundKind kind) const override;
    std::unique_ptr<SoundCapture> createCapture() override;
    std::unique_ptr<SoundPlayback> createPlayback(std::shared_ptr<SoundBuffer> sound,
                                                  SoundPlayback::Finished finished) override;

private:
    void startThread();
    void sendVolume(SoundKind kind, const QString& id, int percent, quint64 order) override;

    std::shared_ptr<EndpointThread> m_endpoints;
    bool m_hasThread = false;
    QTimer m_watch;
};

} // namespace Platform
