// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"
#include "platform/backend/Mailbox.h"
#include "platform/backend/PlayerBackend.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <future>
#include <memory>
#include <optional>
#include <thread>

namespace Platform {

class SoundPlayback;
class SoundService;
class ReportSink;
class SoundBuffer;

// Plays an MP3 file on the current speaker. A separate thread reads and decodes the file. Whatever
// happens to the file, the device or the server, playbackFinished() comes in time.
class SoundPlayer final : public PlayerBackend
{
public:
    // How long device and server may take beyond the length of the sound.
    static constexpr int GraceMs = 2000;

    SoundPlayer(std::shared_ptr<SoundService> server, const QString& path, float volume,
                Listener& listener, ReportSink& report);
    ~SoundPlayer() override;

private:
    void startReading(const QString& path, float volume);
    void followSpeaker();
    void playbackEnded(std::optional<DeviceState> failure);
    void fail(const QString& reason); // in the report's words
    void finish();

    std::shared_ptr<SoundService> m_server;
    Listener& m_listener;
    ReportSink& m_report; // what was played goes there
    std::shared_ptr<SoundBuffer> m_sound;
    std::unique_ptr<SoundPlayback> m_playback;
    QString m_speakerId;
    bool m_isFinished = false;
    std::thread m_reader;
    std::future<void> m_readerEnd;
    QTimer m_watchdog;
    QObject m_context; // ends the signal connection
    Mailbox m_mailbox;
};

} // namespace Platform
