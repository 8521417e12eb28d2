// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumMedia/AudioPlayer.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/SpeakerSession.h"

#include <QTimer>

class AudioPlayer::Bridge final : public Platform::PlayerBackend::Listener
{
public:
    Bridge(AudioPlayer& player, const QString& path, float volume)
        : m_player(player),
          m_backend(Platform::EngineRegistry::engine().createPlayer(path, volume, *this))
    {
        if (!m_backend) {
            QTimer::singleShot(0, &m_player, [this] { playbackFinished(); });
        }
        if (const auto* session = Platform::SpeakerSession::newest()) {
            QObject::connect(session, &Platform::SpeakerSession::ended, &m_player,
                             [this] { deleteWithSpeaker(); });
        }
    }

    void playbackFinished() override
    {
        if (!m_isFinished) {
            m_isFinished = true;
            m_isNotifying = true;
            Q_EMIT m_player.playFileFinished();
            m_isNotifying = false;
        }
    }

    // Stop the sound now, but delete the object later: this may be a call from its back end.
    void stop()
    {
        m_isFinished = true;
        if (!m_isNotifying) {
            m_backend.reset();
        }
    }

private:
    // At once, as no event loop may come any more; but not a player that is just speaking.
    void deleteWithSpeaker()
    {
        m_player.disconnect();
        stop();
        if (m_isNotifying) {
            m_player.deleteLater();
        } else {
            delete &m_player;
        }
    }

    AudioPlayer& m_player;
    bool m_isFinished = false;
    bool m_isNotifying = false;
    std::unique_ptr<Platform::PlayerBackend> m_backend;
};

AudioPlayer::AudioPlayer(const QString& path, float volume)
    : m_bridge(std::make_unique<Bridge>(*this, path, volume))
{
}

AudioPlayer::~AudioPlayer() = default;

// Clients know the signature. NOLINTNEXTLINE(performance-unnecessary-value-param)
AudioPlayer* CreateAudioPlayer(AudioPlayerType /*type*/, QString path, float volume, char* /*data*/,
                               int /*size*/, bool /*loop*/, bool /*fadeIn*/)
{
    return new AudioPlayer(path, volume);
}

int DeleleAudioPlayer(AudioPlayer* player)
{
    if (!player) {
        return -1;
    }
    player->disconnect();
    player->m_bridge->stop();
    player->deleteLater();
    return 0;
}
