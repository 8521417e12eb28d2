// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/ServerSound.h"
#include "platform/devices/sound/SoundCapture.h"
#include "platform/devices/sound/SoundService.h"

namespace TestSupport {

// A sound server without devices, threads or sound: the test says what it has, and its streams call
// what the test orders, on the test's thread.
class ImaginedServer final : public Platform::SoundService
{
    Q_OBJECT

public:
    static constexpr int MaximumVolume = 70;

    struct VolumeOrder
    {
        Platform::SoundKind kind;
        QString id;
        int percent;
        quint64 number;
    };

    void has(const Platform::SoundDevices& devices) { publisher()(devices); }
    int maximumVolume(Platform::SoundKind) const override { return MaximumVolume; }
    std::unique_ptr<Platform::SoundCapture> createCapture() override;
    std::unique_ptr<Platform::SoundPlayback>
    createPlayback(std::shared_ptr<Platform::SoundBuffer> sound,
                   Platform::SoundPlayback::Finished finished) override;

    std::vector<VolumeOrder> orders;
    QString openedMicrophone; // empty while closed
    QString listeningOn;
    Platform::SoundCapture::Events capture; // of the last opening
    QString playingOn;
    std::shared_ptr<Platform::SoundBuffer> sound;       // of the last playback
    Platform::SoundPlayback::Finished playbackFinished; // likewise

private:
    class Capture;
    class Playback;

    void sendVolume(Platform::SoundKind kind, const QString& id, int percent,
                    quint64 order) override
    {
        orders.push_back({kind, id, percent, order});
    }
};

// The sound system on that server, which exists as long as one of them does.
class ImaginedSound final : public Platform::ServerSound
{
public:
    using ServerSound::ServerSound;

    std::shared_ptr<ImaginedServer> server = std::make_shared<ImaginedServer>();

private:
    std::shared_ptr<Platform::SoundService> createServer() const override { return server; }
};

} // namespace TestSupport
