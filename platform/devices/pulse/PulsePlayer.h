// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/Mailbox.h"
#include "platform/backend/PlayerBackend.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <future>
#include <memory>
#include <thread>

namespace Platform {

class PulsePlayback;
class PulseSession;
class ReportSink;
class SoundBuffer;

// Plays an MP3 file on the speaker of the session. The file is read and decoded on a thread of its
// own; whatever becomes of it, of the device or of the server, the end comes in time.
class PulsePlayer final : public PlayerBackend
{
public:
    // How long the device and the server may take on top of the sound itself.
    static constexpr int GraceMs = 2000;

    PulsePlayer(std::shared_ptr<PulseSession> session, const QString& path, float volume,
                Listener& listener, ReportSink& report);
    ~PulsePlayer() override;

private:
    void startReading(const QString& path, float volume);
    void followSpeaker();
    void playbackEnded(bool isGood);
    void fail(const QString& reason); // in the report's words
    void finish();

    std::shared_ptr<PulseSession> m_session;
    Listener& m_listener;
    ReportSink& m_report; // what was played goes there
    std::shared_ptr<SoundBuffer> m_sound;
    std::shared_ptr<PulsePlayback> m_playback;
    QString m_speakerId;
    bool m_isFinished = false;
    std::thread m_reader;
    std::future<void> m_readerEnd;
    QTimer m_watchdog;
    QObject m_context; // of the connection to the session
    Mailbox m_mailbox;
};

} // namespace Platform
