// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/sound/ImaginedServer.h"

#include <utility>

namespace TestSupport {

class ImaginedServer::Capture final : public Platform::SoundCapture
{
public:
    explicit Capture(ImaginedServer& server) : m_server(server) {}
    ~Capture() override { m_server.openedMicrophone.clear(); }

    void open(const QString& microphoneId, std::shared_ptr<Platform::MicrophoneAnalysis>,
              Events events) override
    {
        m_server.openedMicrophone = microphoneId;
        m_server.capture = std::move(events);
    }
    void listenOn(const QString& speakerId) override { m_server.listeningOn = speakerId; }
    void close(std::function<void()> closed) override
    {
        m_server.openedMicrophone.clear();
        if (closed) {
            closed();
        }
    }

private:
    ImaginedServer& m_server;
};

class ImaginedServer::Playback final : public Platform::SoundPlayback
{
public:
    explicit Playback(ImaginedServer& server) : m_server(server) {}
    ~Playback() override { m_server.playingOn.clear(); }

    void playOn(const QString& speakerId) override { m_server.playingOn = speakerId; }
    void soundAdvanced() override {}
    void stop() override { m_server.playingOn.clear(); }
    std::chrono::steady_clock::time_point begin() const override { return {}; }

private:
    ImaginedServer& m_server;
};

std::unique_ptr<Platform::SoundCapture> ImaginedServer::createCapture()
{
    return std::make_unique<Capture>(*this);
}

std::unique_ptr<Platform::SoundPlayback>
ImaginedServer::createPlayback(std::shared_ptr<Platform::SoundBuffer> toPlay,
                               Platform::SoundPlayback::Finished finished)
{
    sound = std::move(toPlay);
    playbackFinished = std::move(finished);
    return std::make_unique<Playback>(*this);
}

} // namespace TestSupport
